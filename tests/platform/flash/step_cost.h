#pragma once

#include <QtGlobal>
#include <ctime>

#include "peak_memory.h"

// What one step of a movie takes: the processor's time, since the machine may have other things to
// do, and memory.
namespace step_cost {

// Generous, so that sanitizers pass; what goes wrong takes far longer.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr long kLongest = 15'000;  // milliseconds
inline constexpr long kMost = 1'000;      // megabytes
#else
inline constexpr long kLongest = 1'000;
inline constexpr long kMost = 64;
#endif

// Milliseconds. An emulated processor takes longer, LENTEZZA times (tools/prova/emulazione.py).
inline long longest() {
  return kLongest * qMax(1, qEnvironmentVariableIntValue("LENTEZZA"));
}

struct Cost {
  long milliseconds = 0;
  long megabytes = 0;

  [[nodiscard]] bool isBounded() const { return milliseconds < longest() && megabytes <= kMost; }
};

template <typename Run>
Cost costOf(Run run) {
  forgetPeak();
  const long before = peakMegabytes();
  const std::clock_t begin = std::clock();
  run();
  return {long((std::clock() - begin) * 1000 / CLOCKS_PER_SEC), peakMegabytes() - before};
}

}  // namespace step_cost
