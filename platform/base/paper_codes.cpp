#include "platform/base/paper_codes.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/base/twips.h"

namespace platform::inline base {

namespace {

struct Size {
  int code;
  double width;
  double height;
};

constexpr double kInch = Twips::kMillimetresPerInch;
constexpr double kClose = 1.5;

// Plain sheets first, then envelopes; "small", "transverse" and the like have the size of another.
constexpr auto kSizes = std::to_array<Size>({
    {9, 210, 297},
    {8, 297, 420},
    {11, 148, 210},
    {1, 8.5 * kInch, 11 * kInch},
    {5, 8.5 * kInch, 14 * kInch},
    {3, 11 * kInch, 17 * kInch},
    {6, 5.5 * kInch, 8.5 * kInch},
    {7, 7.25 * kInch, 10.5 * kInch},
    {12, 257, 364},
    {13, 182, 257},
    {14, 8.5 * kInch, 13 * kInch},
    {15, 215, 275},
    {16, 10 * kInch, 14 * kInch},
    {24, 17 * kInch, 22 * kInch},
    {25, 22 * kInch, 34 * kInch},
    {26, 34 * kInch, 44 * kInch},
    {40, 8.5 * kInch, 12 * kInch},
    {42, 250, 353},
    {43, 100, 148},
    {44, 9 * kInch, 11 * kInch},
    {45, 10 * kInch, 11 * kInch},
    {46, 11 * kInch, 15 * kInch},
    {39, 11 * kInch, 14.875 * kInch},
    {66, 420, 594},
    {57, 227, 356},
    {58, 305, 487},
    {60, 210, 330},
    {63, 322, 445},
    {53, 235, 322},
    {64, 174, 235},
    {65, 201, 276},
    {19, 3.875 * kInch, 8.875 * kInch},
    {20, 4.125 * kInch, 9.5 * kInch},
    {21, 4.5 * kInch, 10.375 * kInch},
    {22, 4.75 * kInch, 11 * kInch},
    {23, 5 * kInch, 11.5 * kInch},
    {27, 110, 220},
    {28, 162, 229},
    {29, 324, 458},
    {30, 229, 324},
    {31, 114, 162},
    {32, 114, 229},
    {34, 176, 250},
    {35, 125, 176},
    {36, 110, 230},
    {37, 3.875 * kInch, 7.5 * kInch},
    {38, 3.625 * kInch, 6.5 * kInch},
    {47, 220, 220},
});

}  // namespace

int paperCodeOf(double width, double height) {
  const auto found = std::find_if(kSizes.begin(), kSizes.end(), [&](const Size& size) {
    return std::abs(size.width - width) <= kClose && std::abs(size.height - height) <= kClose;
  });
  return found == kSizes.end() ? 0 : found->code;
}

}  // namespace platform::inline base
