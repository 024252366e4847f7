#pragma once

#include <cstddef>

namespace platform::flash {

// What a movie may cost, whatever its file claims. A board that needs more is shown in part. The
// first three together keep the loading of a movie below 64 MB.
namespace limits {

inline constexpr std::size_t fileBytes = 16U << 20U;   // read from the disk
inline constexpr std::size_t movieBytes = 32U << 20U;  // after inflating
inline constexpr std::size_t retainedBytes = 12U
                                             << 20U;  // shapes, timelines, ... as held in memory
inline constexpr int stageEdge = 4096;                // pixels
inline constexpr int nesting = 64;                    // sprites within sprites
inline constexpr int instances = 8192;                // alive at a time
inline constexpr int workPerTick = 1'000'000;         // about one for each action
inline constexpr int gotosPerTick = 200;
inline constexpr int commandsPerTick = 256;  // fscommands raised
inline constexpr int queuedBlocks = 16384;
inline constexpr int stackDepth = 512;
inline constexpr int callDepth = 32;
inline constexpr int stringLength = 8192;         // characters
inline constexpr int scriptCharacters = 1 << 20;  // kept by all variables together
inline constexpr int faults = 64;                 // remembered, not met
inline constexpr int sceneItems = 50'000;
inline constexpr int hitWork = 1'000'000;      // segments looked at for one point
inline constexpr int frameSegments = 400'000;  // drawn in one picture
inline constexpr int rowSteps = 60'000;        // edges crossed in one row of pixels, with subrows
inline constexpr int rowLayers = 128;          // times that one row of pixels is painted over

}  // namespace limits

}  // namespace platform::flash
