#pragma once

#include <QColor>
#include <cmath>

namespace platform::inline forms {

// part: of the way from one colour to the other, 0 to 1.
[[nodiscard]] inline QColor mixed(const QColor& from, const QColor& to, double part) {
  const auto channel = [part](int a, int b) { return int(std::lround(a + (b - a) * part)); };
  return {channel(from.red(), to.red()), channel(from.green(), to.green()),
          channel(from.blue(), to.blue())};
}

}  // namespace platform::inline forms
