#pragma once

#include <QRect>
#include <QSize>
#include <QSizeF>

namespace platform::inline forms {

// Lengths on forms are twips, 1440 to the inch, 15 to a logical pixel.
inline constexpr double kTwipsPerPixel = 15;

// A place inside its container, in twips.
struct TwipsRect {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  friend bool operator==(const TwipsRect&, const TwipsRect&) = default;
};

// How a form's design stands on a page of some size: by how much its twips are stretched, and how
// many twips of the stretched page make one logical pixel.
struct Scale {
  double x = 1;  // page twips to one design twip, across
  double y = 1;  // the same, down
  double twipsPerPixel = kTwipsPerPixel;

  // Fonts grow with the direction that grew less.
  [[nodiscard]] double font() const { return x < y ? x : y; }

  // The pixels of a place given in design twips. Edges are rounded one by one, so that what abuts
  // in the design abuts on the screen.
  [[nodiscard]] QRect pixels(const TwipsRect& design) const;
  // Logical pixels of a font of so many points in the design.
  [[nodiscard]] double fontPixels(double points) const {
    return points * 20 * font() / twipsPerPixel;
  }

  friend bool operator==(const Scale&, const Scale&) = default;
};

// The largest client area, in pixels, that fits `available` and is not narrower in shape than the
// design: a narrower window letterboxes the page. keepsShape: so does a wider one.
[[nodiscard]] QSize clientPixels(QSize available, QSizeF designTwips, bool keepsShape = false);

// The scale of a client area of so many pixels. A pixel is 15 twips until the area would pass
// 24,000 twips in height or 32,000 in width; from there it is fewer, so that no length on a form
// leaves the 16-bit range on a large screen.
[[nodiscard]] Scale scaleFor(QSize clientPixels, QSizeF designTwips);

}  // namespace platform::inline forms
