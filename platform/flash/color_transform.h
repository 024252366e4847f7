#pragma once

#include <QRgb>
#include <algorithm>
#include <array>

namespace platform::flash {

// How a placed thing changes the colours of what is in it: each channel c, 0 to 255, becomes
// c * multiply + add, clamped. Colours are not premultiplied by their alpha.
struct ColorTransform {
  // Red, green, blue, alpha.
  std::array<double, 4> multiply{1, 1, 1, 1};
  std::array<double, 4> add{0, 0, 0, 0};

  bool operator==(const ColorTransform&) const = default;

  // What this one does to colours that child has already changed.
  [[nodiscard]] ColorTransform after(const ColorTransform& child) const {
    ColorTransform both;
    for (std::size_t i = 0; i < 4; ++i) {
      both.multiply[i] = multiply[i] * child.multiply[i];
      both.add[i] = multiply[i] * child.add[i] + add[i];
    }
    return both;
  }

  [[nodiscard]] QRgb apply(QRgb color) const {
    const auto channel = [this](std::size_t i, int value) {
      return static_cast<int>(std::clamp(value * multiply[i] + add[i] + 0.5, 0.0, 255.0));
    };
    return qRgba(channel(0, qRed(color)), channel(1, qGreen(color)), channel(2, qBlue(color)),
                 channel(3, qAlpha(color)));
  }
};

}  // namespace platform::flash
