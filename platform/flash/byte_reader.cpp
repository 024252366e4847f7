#include "platform/flash/byte_reader.h"

#include <algorithm>
#include <bit>

#include "platform/flash/movie_error.h"

namespace platform::flash {

Bytes ByteReader::bytes(std::size_t count) {
  if (count > remaining()) {
    throw MovieError("more bytes are needed than there are", at_);
  }
  const Bytes part = bytes_.subspan(at_, count);
  at_ += count;
  return part;
}

Bytes ByteReader::rest() {
  return bytes(remaining());
}

std::uint8_t ByteReader::u8() {
  return bytes(1)[0];
}

std::uint16_t ByteReader::u16() {
  const Bytes part = bytes(2);
  return static_cast<std::uint16_t>(part[0] | (part[1] << 8U));
}

std::int16_t ByteReader::s16() {
  return static_cast<std::int16_t>(u16());
}

std::uint32_t ByteReader::u32() {
  const Bytes part = bytes(4);
  return std::uint32_t(part[0]) | (std::uint32_t(part[1]) << 8U) | (std::uint32_t(part[2]) << 16U) |
         (std::uint32_t(part[3]) << 24U);
}

float ByteReader::f32() {
  return std::bit_cast<float>(u32());
}

double ByteReader::f64() {
  const std::uint64_t high = u32();
  const std::uint64_t low = u32();
  return std::bit_cast<double>((high << 32U) | low);
}

QByteArrayView ByteReader::string() {
  const Bytes left = bytes_.subspan(at_);
  const auto end = std::find(left.begin(), left.end(), std::uint8_t(0));
  if (end == left.end()) {
    throw MovieError("a text has no end", at_);
  }
  const auto length = static_cast<std::size_t>(end - left.begin());
  at_ += length + 1;
  return {reinterpret_cast<const char*>(left.data()), static_cast<qsizetype>(length)};
}

void ByteReader::seek(std::size_t position) {
  if (position > bytes_.size()) {
    throw MovieError("an offset points outside", at_);
  }
  at_ = position;
}

}  // namespace platform::flash
