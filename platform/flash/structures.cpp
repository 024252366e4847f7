#include "platform/flash/structures.h"

#include "platform/flash/bit_reader.h"

namespace platform::flash {

QRectF readRect(ByteReader& bytes) {
  BitReader bits(bytes);
  const int width = static_cast<int>(bits.unsignedBits(5));
  const double left = bits.signedBits(width);
  const double right = bits.signedBits(width);
  const double top = bits.signedBits(width);
  const double bottom = bits.signedBits(width);
  return {QPointF(left, top), QPointF(right, bottom)};
}

QTransform readMatrix(ByteReader& bytes) {
  BitReader bits(bytes);
  double scaleX = 1;
  double scaleY = 1;
  double skew0 = 0;
  double skew1 = 0;
  if (bits.flag()) {
    const int width = static_cast<int>(bits.unsignedBits(5));
    scaleX = bits.fixedBits(width);
    scaleY = bits.fixedBits(width);
  }
  if (bits.flag()) {
    const int width = static_cast<int>(bits.unsignedBits(5));
    skew0 = bits.fixedBits(width);
    skew1 = bits.fixedBits(width);
  }
  const int width = static_cast<int>(bits.unsignedBits(5));
  const double x = bits.signedBits(width);
  const double y = bits.signedBits(width);
  // x' = x * scaleX + y * skew1 + dx, y' = x * skew0 + y * scaleY + dy.
  return {scaleX, skew0, skew1, scaleY, x, y};
}

ColorTransform readColorTransform(ByteReader& bytes, bool withAlpha) {
  BitReader bits(bytes);
  const bool hasAdd = bits.flag();
  const bool hasMultiply = bits.flag();
  const int width = static_cast<int>(bits.unsignedBits(4));
  const std::size_t channels = withAlpha ? 4 : 3;
  ColorTransform transform;
  for (std::size_t i = 0; hasMultiply && i < channels; ++i) {
    transform.multiply[i] = bits.signedBits(width) / 256.0;
  }
  for (std::size_t i = 0; hasAdd && i < channels; ++i) {
    transform.add[i] = bits.signedBits(width);
  }
  return transform;
}

QRgb readColor(ByteReader& bytes, bool withAlpha) {
  const int red = bytes.u8();
  const int green = bytes.u8();
  const int blue = bytes.u8();
  const int alpha = withAlpha ? bytes.u8() : 255;
  return qRgba(red, green, blue, alpha);
}

}  // namespace platform::flash
