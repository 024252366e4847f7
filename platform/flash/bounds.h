#pragma once

#include <QRectF>

#include "platform/flash/budget.h"
#include "platform/flash/instance.h"

namespace platform::flash {

// What an instance covers in the coordinates of its parent (twips), visible or not. Empty for one
// that draws nothing; in part where the budget does not do.
[[nodiscard]] QRectF boundsInParent(const Instance& instance, Budget& budget);

// A line is as wide in all directions, whatever the matrix does to what it follows: half its width
// where the matrix leads to, and what it covers there.
[[nodiscard]] double halfWidthOfLine(const ShapePart& line, const QTransform& matrix);
[[nodiscard]] QRectF boundsOfLine(const ShapePart& line, const QTransform& matrix);

}  // namespace platform::flash
