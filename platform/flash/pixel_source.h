#pragma once

#include <QRgb>
#include <QTransform>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/flash/color_transform.h"
#include "platform/flash/shape.h"

namespace platform::flash {

// The colour that a paint has at each pixel, premultiplied by its alpha.
class PixelSource {
 public:
  // One colour, not premultiplied.
  explicit PixelSource(QRgb color) : color_(qPremultiply(color)), opaque_(qAlpha(color) == 255) {}
  // toPixels: from the shape that the gradient belongs to.
  PixelSource(const Gradient& gradient, const ColorTransform& color, const QTransform& toPixels);

  // Whether one colour does for all pixels, and which.
  [[nodiscard]] bool isSolid() const { return !gradient_; }
  [[nodiscard]] QRgb color() const { return color_; }
  // Whether nothing of what lies below can be seen.
  [[nodiscard]] bool isOpaque() const { return opaque_; }
  // About what filling a pixel takes, in nanoseconds.
  [[nodiscard]] std::int64_t workPerPixel() const {
    constexpr std::int64_t kSolid = 1;
    constexpr std::int64_t kTranslucent = 3;
    constexpr std::int64_t kLinear = 5;
    constexpr std::int64_t kRadial = 8;
    return !gradient_ ? (opaque_ ? kSolid : kTranslucent) : radial_ ? kRadial : kLinear;
  }
  // The colours of the pixels from x on in row y.
  void fill(std::span<QRgb> colors, int x, int y) const;

 private:
  void fillRadially(std::span<QRgb> colors, float gx, float gy) const;

  QRgb color_ = 0;
  bool opaque_ = false;
  bool gradient_ = false;
  bool radial_ = false;
  QTransform toGradient_;
  std::vector<QRgb> colors_;  // of a gradient: from its begin to its end
};

// color over what was there; both are premultiplied.
[[nodiscard]] inline QRgb over(QRgb color, QRgb below) {
  const std::uint32_t keep = 255U - (color >> 24U);
  // Two channels at a time, divided by 255 with rounding.
  const auto scaled = [keep](std::uint32_t two) {
    const std::uint32_t product = two * keep + 0x00800080U;
    return ((product + ((product >> 8U) & 0x00FF00FFU)) >> 8U) & 0x00FF00FFU;
  };
  return color + scaled(below & 0x00FF00FFU) + (scaled((below >> 8U) & 0x00FF00FFU) << 8U);
}

}  // namespace platform::flash
