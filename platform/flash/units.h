#pragma once

#include <cstdint>

#include "platform/base/twips.h"

namespace platform::flash {

// Lengths and places in a movie are twips; this length is a pixel of a board at its own size.
inline constexpr Twips kPixel{20};

// Further out, in twips, nothing can be drawn, and a float still holds every twip.
inline constexpr std::int64_t kFarthestTwip = 1 << 23;

}  // namespace platform::flash
