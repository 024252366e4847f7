#pragma once

#include <QRectF>

#include "platform/flash/budget.h"
#include "platform/flash/instance.h"

namespace platform::flash {

// What an instance covers in the coordinates of its parent (twips), visible or not. Empty for one
// that draws nothing; in part where the budget does not do.
[[nodiscard]] QRectF boundsInParent(const Instance& instance, Budget& budget);

}  // namespace platform::flash
