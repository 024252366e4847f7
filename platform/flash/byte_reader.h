#pragma once

#include <QByteArrayView>
#include <cstddef>
#include <cstdint>
#include <span>

namespace platform::flash {

using Bytes = std::span<const std::uint8_t>;

// Reads little-endian values from the front of some bytes and never past their end: that is a
// MovieError. It borrows the bytes.
class ByteReader {
 public:
  explicit ByteReader(Bytes bytes) : bytes_(bytes) {}

  [[nodiscard]] std::size_t position() const { return at_; }
  [[nodiscard]] std::size_t remaining() const { return bytes_.size() - at_; }
  [[nodiscard]] bool atEnd() const { return at_ == bytes_.size(); }

  std::uint8_t u8();
  std::uint16_t u16();
  std::int16_t s16();
  std::uint32_t u32();
  float f32();
  // The format stores the halves of a double in the wrong order, the high one first.
  double f64();
  // Up to a zero byte, which is taken, too. The text is borrowed and not yet decoded.
  QByteArrayView string();
  // The next count bytes, as they are.
  Bytes bytes(std::size_t count);
  // All that is left.
  Bytes rest();
  void skip(std::size_t count) { (void)bytes(count); }
  // Moves to a position from the start; it may be the end.
  void seek(std::size_t position);

 private:
  Bytes bytes_;
  std::size_t at_ = 0;
};

}  // namespace platform::flash
