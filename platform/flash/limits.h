#pragma once

#include <cstddef>

#include "platform/flash/budget.h"

namespace platform::flash {

// What a movie may cost, whatever its file claims. A board that needs more is shown in part. The
// bytes of the file, those after inflating and what loading makes of them stay below 64 MB
// together.
namespace limits {

inline constexpr std::int64_t kMillisecond = 1'000'000;  // in nanoseconds
inline constexpr std::int64_t kMegabyte = 1 << 20;

// The steps. Loading plays the first frame, too, and a picture asks before it paints: together they
// end within a second also where the clock has to end them.
inline constexpr Budget::Amount kLoading{350 * kMillisecond, 450 * kMillisecond, 12 * kMegabyte};
inline constexpr Budget::Amount kPlaying{250 * kMillisecond, 400 * kMillisecond, 24 * kMegabyte};
inline constexpr Budget::Amount kAsking{50 * kMillisecond, 100 * kMillisecond, 24 * kMegabyte};
inline constexpr Budget::Amount kPainting{300 * kMillisecond, 400 * kMillisecond, 32 * kMegabyte};

inline constexpr std::size_t kFileBytes = 16U << 20U;   // read from the disk
inline constexpr std::size_t kMovieBytes = 32U << 20U;  // after inflating
inline constexpr int kStageEdge = 4096;                 // pixels
inline constexpr int kNesting = 64;                     // sprites within sprites
inline constexpr int kInstances = 8192;                 // alive at a time
inline constexpr int kGotosPerTick = 200;
inline constexpr int kCommandsPerTick = 256;  // fscommands raised
inline constexpr int kQueuedBlocks = 16384;
inline constexpr int kStackDepth = 512;
inline constexpr int kCallDepth = 256;
inline constexpr int kStringLength = 8192;         // characters
inline constexpr int kScriptCharacters = 1 << 20;  // kept by all variables and names together
inline constexpr int kFaults = 64;                 // remembered, not met
inline constexpr int kSceneItems = 50'000;
inline constexpr std::size_t kFrameSegments = 400'000;  // drawn in one picture

}  // namespace limits

}  // namespace platform::flash
