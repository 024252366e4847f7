#pragma once

#include <cstdint>

#include "platform/flash/byte_reader.h"

namespace platform::flash {

// Reads bit fields, the highest bit of each byte first, out of a ByteReader. The bytes begin where
// that reader stands; bits left over in the last byte are dropped, since structures of the format
// begin on whole bytes.
class BitReader {
 public:
  explicit BitReader(ByteReader& bytes) : bytes_(bytes) {}

  bool flag() { return unsignedBits(1) != 0; }
  // count: 0 to 32; no bits are 0.
  std::uint32_t unsignedBits(int count);
  // Two's complement of count bits.
  std::int32_t signedBits(int count);
  // 16.16 fixed point in count bits.
  double fixedBits(int count) { return signedBits(count) / 65536.0; }
  // Drops what is left of the byte that was begun.
  void align() { left_ = 0; }

 private:
  ByteReader& bytes_;
  std::uint8_t current_ = 0;
  int left_ = 0;
};

}  // namespace platform::flash
