#pragma once

#include <QRect>
#include <QSize>
#include <QSizeF>

#include "platform/base/twips.h"

namespace platform::inline forms {

// Lengths on forms are twips; this length is a logical pixel, of which an inch has 96.
inline constexpr Twips kPixel{15};

// A place inside its container, in twips.
struct TwipsRect {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  friend bool operator==(const TwipsRect&, const TwipsRect&) = default;
};

// How a form's design stands on a page of some size: by how much its twips are stretched, and how
// long a logical pixel is on the stretched page.
struct Scale {
  double x = 1;  // page twips to one design twip, across
  double y = 1;  // the same, down
  Twips pixel = kPixel;

  // Fonts grow with the direction that grew less.
  [[nodiscard]] double font() const { return x < y ? x : y; }

  // The pixels of a place given in design twips. Edges are rounded one by one, so that what abuts
  // in the design abuts on the screen.
  [[nodiscard]] QRect pixels(const TwipsRect& design) const;
  // By how much what is given in pixels grows with the fonts.
  [[nodiscard]] double grown() const { return font() * (kPixel / pixel); }
  // The size in logical pixels of a font whose size in the design is given in points.
  [[nodiscard]] double fontPixels(double points) const {
    return Twips::points(points) * font() / pixel;
  }

  friend bool operator==(const Scale&, const Scale&) = default;
};

// The largest client area, in pixels, that fits `available` and is not narrower in shape than the
// design: a narrower window letterboxes the page. keepsShape: so does a wider one.
[[nodiscard]] QSize clientPixels(QSize available, QSizeF designTwips, bool keepsShape = false);

// The scale of a client area of that size. A pixel is 15 twips until the area would pass
// 24,000 twips in height or 32,000 in width; from there it is fewer, so that no length on a form
// leaves the 16-bit range on a large screen.
[[nodiscard]] Scale scaleFor(QSize clientPixels, QSizeF designTwips);

}  // namespace platform::inline forms
