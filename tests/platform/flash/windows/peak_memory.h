#pragma once

#include <windows.h>
// After the system's own.
#include <psapi.h>

namespace step_cost {

// The most that the process has held in memory, in megabytes.
inline long peakMegabytes() {
  PROCESS_MEMORY_COUNTERS told{};
  ::GetProcessMemoryInfo(::GetCurrentProcess(), &told, sizeof told);
  return long(told.PeakPagefileUsage >> 20U);
}

// The system forgets no peak: a step is seen to take what lies above all that came before.
inline void forgetPeak() {}

}  // namespace step_cost
