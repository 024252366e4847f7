#pragma once

namespace platform::inline base {

// The codes by which programs know kinds of paper, 1 to 68, and 256 for a size of the user's own.
inline constexpr int kPaperA3 = 8;
inline constexpr int kPaperA4 = 9;
inline constexpr int kPaperUser = 256;

// The code of a sheet by its size in millimetres, held upright; 0 where no code has that size to
// within a millimetre and a half. Where several have it, the plainest one is meant.
[[nodiscard]] int paperCodeOf(double width, double height);

}  // namespace platform::inline base
