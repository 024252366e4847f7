#pragma once

#include <cstddef>

#include "platform/flash/budget.h"

namespace platform::flash {

// What a movie may cost, whatever its file claims. A board that needs more is shown in part. The
// bytes of the file, those after inflating and what loading makes of them stay below 64 MB
// together.
namespace limits {

inline constexpr std::int64_t millisecond = 1'000'000;  // in nanoseconds
inline constexpr std::int64_t megabyte = 1 << 20;

// The steps. Loading plays the first frame, too, and a picture asks before it paints: together they
// end within a second also where the clock has to end them.
inline constexpr Budget::Amount loading{350 * millisecond, 450 * millisecond, 12 * megabyte};
inline constexpr Budget::Amount playing{250 * millisecond, 400 * millisecond, 24 * megabyte};
inline constexpr Budget::Amount asking{50 * millisecond, 100 * millisecond, 24 * megabyte};
inline constexpr Budget::Amount painting{300 * millisecond, 400 * millisecond, 32 * megabyte};

inline constexpr std::size_t fileBytes = 16U << 20U;   // read from the disk
inline constexpr std::size_t movieBytes = 32U << 20U;  // after inflating
inline constexpr int stageEdge = 4096;                 // pixels
inline constexpr int nesting = 64;                     // sprites within sprites
inline constexpr int instances = 8192;                 // alive at a time
inline constexpr int gotosPerTick = 200;
inline constexpr int commandsPerTick = 256;  // fscommands raised
inline constexpr int queuedBlocks = 16384;
inline constexpr int stackDepth = 512;
inline constexpr int callDepth = 256;
inline constexpr int stringLength = 8192;         // characters
inline constexpr int scriptCharacters = 1 << 20;  // kept by all variables and names together
inline constexpr int faults = 64;                 // remembered, not met
inline constexpr int sceneItems = 50'000;
inline constexpr std::size_t frameSegments = 400'000;  // drawn in one picture

}  // namespace limits

}  // namespace platform::flash
