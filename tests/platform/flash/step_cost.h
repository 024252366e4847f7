#pragma once

#include <malloc.h>

#include <ctime>
#include <fstream>
#include <string>

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

struct Cost {
  long milliseconds = 0;
  long megabytes = 0;

  [[nodiscard]] bool isBounded() const { return milliseconds < kLongest && megabytes <= kMost; }
};

// The most that the process has held in memory since the last forgetPeak(), in megabytes.
inline long peakMegabytes() {
  std::ifstream status("/proc/self/status");
  std::string word;
  long kilobytes = 0;
  while (status >> word) {
    if (word == "VmHWM:") status >> kilobytes;
  }
  return kilobytes / 1024;
}

inline void forgetPeak() {
  std::ofstream("/proc/self/clear_refs") << "5";
}

template <typename Run>
Cost costOf(Run run) {
  malloc_trim(0);  // what came before must not hide what this takes
  forgetPeak();
  const long before = peakMegabytes();
  const std::clock_t begin = std::clock();
  run();
  return {long((std::clock() - begin) * 1000 / CLOCKS_PER_SEC), peakMegabytes() - before};
}

}  // namespace step_cost
