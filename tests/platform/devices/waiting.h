#pragma once

#include <QElapsedTimer>

#include "platform/base/time_source.h"

// Time that passes for real.
namespace prova {

// Waits as the program's handlers do: lets events run until the limit has passed.
inline void waitSeconds(platform::TimeSource& time, double seconds) {
  QElapsedTimer clock;
  clock.start();
  double left = seconds;
  while (left > 0) {
    time.sleepUntilEvent(left);
    left = seconds - static_cast<double>(clock.nsecsElapsed()) / 1e9;
  }
}

// Keeps the processor busy without letting events run.
inline void blockMilliseconds(int milliseconds) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < milliseconds) {
  }
}

}  // namespace prova
