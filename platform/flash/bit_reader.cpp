#include "platform/flash/bit_reader.h"

#include <algorithm>

namespace platform::flash {

std::uint32_t BitReader::unsignedBits(int count) {
  std::uint64_t value = 0;
  while (count > 0) {
    if (left_ == 0) {
      current_ = bytes_.u8();
      left_ = 8;
    }
    const int taken = std::min(count, left_);
    const unsigned shifted = unsigned(current_) >> unsigned(left_ - taken);
    value = (value << unsigned(taken)) | (shifted & ((1U << unsigned(taken)) - 1U));
    left_ -= taken;
    count -= taken;
  }
  return static_cast<std::uint32_t>(value);
}

std::int32_t BitReader::signedBits(int count) {
  const std::uint32_t value = unsignedBits(count);
  if (count == 0 || count >= 32 || (value >> unsigned(count - 1)) == 0) {
    return static_cast<std::int32_t>(value);
  }
  return static_cast<std::int32_t>(value | (~std::uint32_t(0) << unsigned(count)));
}

}  // namespace platform::flash
