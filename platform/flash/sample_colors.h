#pragma once

#include <QRgb>
#include <array>
#include <cstdint>

#include "platform/flash/edge_set.h"

// The colours of samples, and what they come to in a pixel.
namespace platform::flash {

// Two colours mixed: `sixteenths` parts of 16 of the one, the rest of the other.
inline QRgb mixed(QRgb above, QRgb below, std::uint32_t sixteenths) {
  const auto two = [&](std::uint32_t a, std::uint32_t b) {
    const std::uint32_t sum =
        (a & 0x00FF00FFU) * sixteenths + (b & 0x00FF00FFU) * (kSamples - sixteenths);
    return ((sum + 0x00080008U) >> 4U) & 0x00FF00FFU;
  };
  return two(above, below) | (two(above >> 8U, below >> 8U) << 8U);
}

// Where the processor is not known to count bits itself, a library would be called for each pixel.
inline constexpr auto kBitsOfByte = [] {
  std::array<std::uint8_t, 256> bits{};
  for (unsigned byte = 1; byte < bits.size(); ++byte) {
    bits[byte] = static_cast<std::uint8_t>(bits[byte / 2] + byte % 2);
  }
  return bits;
}();

// How many samples a mask has.
inline std::uint32_t samplesIn(SampleMask mask) {
  return std::uint32_t(kBitsOfByte[mask & 0xFFU]) + kBitsOfByte[mask >> 8U];
}

// The colour that a pixel has by those of its samples.
inline QRgb average(const std::array<QRgb, kSamples>& colors) {
  // Two channels in each sum; sixteen times 255 does not run over.
  std::uint32_t low = 0;
  std::uint32_t high = 0;
  for (const QRgb color : colors) {
    low += color & 0x00FF00FFU;
    high += (color >> 8U) & 0x00FF00FFU;
  }
  const auto divided = [](std::uint32_t sum) { return ((sum + 0x00080008U) >> 4U) & 0x00FF00FFU; };
  return divided(low) | (divided(high) << 8U);
}

}  // namespace platform::flash
