#pragma once

#include "platform/base/numbers.h"
#include "platform/forms/design.h"

namespace platform::inline forms {

// A colour that is held as one number: red in the lowest eight bits, then green, then blue. What
// lies above them is left out. Throws RunTimeError(Overflow) for a number that 32 bits do not hold.
[[nodiscard]] inline Rgb rgbOf(double number) {
  const auto bits = static_cast<std::uint32_t>(toInt32(number));
  return {static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(bits >> 8U),
          static_cast<std::uint8_t>(bits >> 16U)};
}

}  // namespace platform::inline forms
