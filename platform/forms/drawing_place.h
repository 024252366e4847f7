#pragma once

#include <QRectF>
#include <QString>

#include "platform/forms/drawing.h"

namespace platform::inline forms {

// Where a drawing stands in an area: in its own proportions, as large as fits, in the middle. Empty
// for a drawing or an area that shows nothing.
[[nodiscard]] QRectF placeIn(const Drawing& drawing, const QRectF& area);

// The same for one of its parts.
[[nodiscard]] QRectF placeOf(const Drawing& drawing, const QString& part, const QRectF& area);

}  // namespace platform::inline forms
