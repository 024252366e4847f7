#pragma once

#include <QElapsedTimer>

namespace bench {

// Milliseconds since a clock was started.
[[nodiscard]] inline double millisecondi(const QElapsedTimer& orologio) {
  return static_cast<double>(orologio.nsecsElapsed()) / 1e6;
}

}  // namespace bench
