#include "platform/forms/geometry.h"

#include <algorithm>
#include <cmath>

namespace platform::inline forms {

namespace {

constexpr double kMostTwipsAcross = 32000;
constexpr double kMostTwipsDown = 24000;

int rounded(double value) {
  return static_cast<int>(std::lround(value));
}

}  // namespace

QRect Scale::pixels(const TwipsRect& design) const {
  const int left = rounded(Twips(design.left) * x / pixel);
  const int top = rounded(Twips(design.top) * y / pixel);
  const int right = rounded(Twips(design.left + design.width) * x / pixel);
  const int bottom = rounded(Twips(design.top + design.height) * y / pixel);
  return {left, top, std::max(0, right - left), std::max(0, bottom - top)};
}

QSize clientPixels(QSize available, QSizeF designTwips, bool keepsShape) {
  const double shape = designTwips.width() / designTwips.height();
  const int widest = keepsShape ? rounded(available.height() * shape) : available.width();
  const int tallest = rounded(available.width() / shape);
  return {std::clamp(widest, 1, std::max(1, available.width())),
          std::clamp(tallest, 1, std::max(1, available.height()))};
}

Scale scaleFor(QSize clientPixels, QSizeF designTwips) {
  const double width = std::max(1, clientPixels.width());
  const double height = std::max(1, clientPixels.height());
  const double twips =
      std::min({kPixel.count(), kMostTwipsAcross / width, kMostTwipsDown / height});
  return {width * twips / designTwips.width(), height * twips / designTwips.height(), Twips(twips)};
}

}  // namespace platform::inline forms
