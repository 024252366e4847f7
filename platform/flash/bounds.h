#pragma once

#include <QRectF>

#include "platform/flash/instance.h"

namespace platform::flash {

// What an instance covers in the coordinates of its parent (twips), visible or not. Empty for one
// that draws nothing.
[[nodiscard]] QRectF boundsInParent(const Instance& instance);

}  // namespace platform::flash
