#include "platform/flash/pixel_source.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace platform::flash {

namespace {

constexpr double kHalfSquare = 16384;  // of the gradient's own square
constexpr double kSteepest = 1e12;     // units of the square for each pixel

}  // namespace

PixelSource::PixelSource(const Gradient& gradient, const ColorTransform& color,
                         const QTransform& toPixels)
    : gradient_(true), radial_(gradient.radial), colors_(gradient.table()) {
  for (QRgb& entry : colors_) {
    entry = qPremultiply(color.apply(entry));
  }
  opaque_ =
      std::all_of(colors_.begin(), colors_.end(), [](QRgb entry) { return qAlpha(entry) == 255; });
  bool possible = false;
  toGradient_ = (gradient.matrix * toPixels).inverted(&possible);
  const QTransform& m = toGradient_;
  for (const double part : {m.m11(), m.m12(), m.m21(), m.m22(), m.dx(), m.dy()}) {
    possible = possible && std::abs(part) < kSteepest;
  }
  if (!possible) {
    // Squeezed to a line, it shows its last colour everywhere.
    gradient_ = false;
    color_ = colors_.back();
    opaque_ = qAlpha(color_) == 255;
  }
}

// Distances first, colours afterwards: the compiler makes several distances at a time. At the edges
// of a shape, pixels come one by one.
void PixelSource::fillRadially(std::span<QRgb> colors, float gx, float gy) const {
  constexpr std::size_t kTogether = 16;
  constexpr std::size_t kFew = 4;
  const auto last = static_cast<float>(colors_.size() - 1);
  const auto dx = static_cast<float>(toGradient_.m11() * last / kHalfSquare);
  const auto dy = static_cast<float>(toGradient_.m12() * last / kHalfSquare);
  const auto indexAt = [=](std::size_t pixel) {
    const auto steps = static_cast<float>(static_cast<std::int32_t>(pixel));
    const float x = gx + dx * steps;
    const float y = gy + dy * steps;
    return static_cast<std::int32_t>(std::min(std::sqrt(x * x + y * y), last) + 0.5F);
  };
  std::array<std::int32_t, kTogether> indices{};
  std::size_t begin = 0;
  for (; colors.size() - begin > kFew; begin += std::min(kTogether, colors.size() - begin)) {
    for (std::size_t i = 0; i < kTogether; ++i) {
      indices[i] = indexAt(begin + i);
    }
    const std::size_t count = std::min(kTogether, colors.size() - begin);
    for (std::size_t i = 0; i < count; ++i) {
      colors[begin + i] = colors_[static_cast<std::size_t>(indices[i])];
    }
  }
  for (; begin < colors.size(); ++begin) {
    colors[begin] = colors_[static_cast<std::size_t>(indexAt(begin))];
  }
}

void PixelSource::fill(std::span<QRgb> colors, int x, int y) const {
  if (!gradient_) {
    std::fill(colors.begin(), colors.end(), color_);
    return;
  }
  // From the middle of the first pixel, in steps of the table.
  const auto last = static_cast<float>(colors_.size() - 1);
  const double px = x + 0.5;
  const double py = y + 0.5;
  const double unit = last / (radial_ ? kHalfSquare : 2 * kHalfSquare);
  auto gx = static_cast<float>(
      (toGradient_.m11() * px + toGradient_.m21() * py + toGradient_.dx()) * unit);
  if (radial_) {
    fillRadially(colors, gx,
                 static_cast<float>(
                     (toGradient_.m12() * px + toGradient_.m22() * py + toGradient_.dy()) * unit));
    return;
  }
  const auto dx = static_cast<float>(toGradient_.m11() * unit);
  gx += last / 2;
  for (QRgb& color : colors) {
    color = colors_[static_cast<std::size_t>(std::clamp(gx, 0.0F, last) + 0.5F)];
    gx += dx;
  }
}

}  // namespace platform::flash
