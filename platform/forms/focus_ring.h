#pragma once

#include <QRectF>

class QPainter;

namespace platform {

// How far the ring reaches into what it surrounds, in pixels.
inline constexpr double kFocusRingWidth = 5;

// The mark of the control that has the focus: a light ring inside a dark one, which stands out on
// a ground of any colour. corner: the radius of the outer corners, in pixels; 0 for square ones.
void paintFocusRing(QPainter& painter, const QRectF& area, double corner);

// While one lives, no control shows a focus ring: for a picture of a form that is to be printed.
class WithoutFocusRings {
 public:
  WithoutFocusRings();
  ~WithoutFocusRings();
  WithoutFocusRings(const WithoutFocusRings&) = delete;
  WithoutFocusRings& operator=(const WithoutFocusRings&) = delete;
};

}  // namespace platform
