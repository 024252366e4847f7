#pragma once

class QColor;
class QPainter;
class QRect;
class QWidget;

namespace platform::inline forms {

// How far the ring reaches into what it surrounds, in pixels, where the window is not large.
inline constexpr double kFocusRingWidth = 5;

// How many times as thick as usual rings, text cursors and edges are in this one's window, so that
// they do not thin out beside forms that grow with it; 1 up to a height of 768 pixels. A window
// over another one goes by that.
[[nodiscard]] double markScale(const QWidget& widget);
// What is `pixels` wide in a window that is not large, in whole pixels of this one's; at least 1.
[[nodiscard]] int markPixels(const QWidget& widget, double pixels);

// The mark of the control that has the focus: a light ring inside a dark one, which stands out on
// a ground of any colour. corner: the radius of the outer corners, in pixels; 0 for square ones.
// inset: how far inside of the control it lies, in pixels.
void paintFocusRing(QPainter& painter, const QWidget& control, double corner, double inset = 0);

// A border inside the edges of a rectangle; width: in pixels.
void paintBorder(QPainter& painter, const QRect& area, int width, const QColor& color);

// While one lives, no control shows a focus ring: for a picture of a form that is to be printed.
class WithoutFocusRings {
 public:
  WithoutFocusRings();
  ~WithoutFocusRings();
  WithoutFocusRings(const WithoutFocusRings&) = delete;
  WithoutFocusRings& operator=(const WithoutFocusRings&) = delete;
};

}  // namespace platform::inline forms
