#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <initializer_list>
#include <memory>

#include "platform/flash/movie.h"
#include "platform/flash/movie_reader.h"

// Movies put together by hand, byte by byte, from the description of the format. Nothing here
// comes from the reader under test, nor from any writer.
namespace hand_made {

// Bit fields, the highest bit first, filled up with zeros to whole bytes at the end.
class Bits {
 public:
  // As written, "0" and "1"; blanks are for the reader's eye.
  Bits& raw(const char* bits) {
    for (; *bits != 0; ++bits) {
      if (*bits != ' ') {
        put(*bits == '1');
      }
    }
    return *this;
  }
  // The lowest width bits of a number, of either sign.
  Bits& number(int width, std::int64_t value) {
    for (int i = width - 1; i >= 0; --i) {
      put(((static_cast<std::uint64_t>(value) >> unsigned(i)) & 1U) != 0);
    }
    return *this;
  }
  [[nodiscard]] QByteArray bytes() const { return bytes_; }

 private:
  void put(bool bit) {
    if (used_ == 0) {
      bytes_.append('\0');
    }
    if (bit) {
      bytes_.back() = static_cast<char>(bytes_.back() | (0x80 >> used_));
    }
    used_ = (used_ + 1) % 8;
  }

  QByteArray bytes_;
  int used_ = 0;
};

inline QByteArray u8(unsigned value) {
  return QByteArray(1, static_cast<char>(value));
}
inline QByteArray u16(unsigned value) {
  return u8(value & 255U) + u8(value >> 8U);
}
inline QByteArray u32(std::uint32_t value) {
  return u16(value & 0xFFFFU) + u16(value >> 16U);
}
inline QByteArray text(const char* value) {
  return QByteArray(value) + '\0';
}

// Six bits of length at most; 63 means that four bytes of length follow.
inline QByteArray tag(unsigned code, const QByteArray& body = {}) {
  const auto length = static_cast<unsigned>(body.size());
  return length < 63 ? u16((code << 6U) | length) + body
                     : u16((code << 6U) | 63U) + u32(length) + body;
}

// A rectangle of 16 bits a side, in twips.
inline QByteArray rect(int left, int right, int top, int bottom) {
  return Bits()
      .raw("10001")
      .number(17, left)
      .number(17, right)
      .number(17, top)
      .number(17, bottom)
      .bytes();
}

// A matrix that only shifts, in twips.
inline QByteArray shift(int x, int y) {
  return Bits().raw("0 0 10001").number(17, x).number(17, y).bytes();
}

// The uncompressed file: a stage in pixels, 12 frames a second.
inline QByteArray file(const QByteArray& tags, int version = 6, int width = 100, int height = 100,
                       unsigned frames = 1) {
  const QByteArray body = rect(0, width * 20, 0, height * 20) + u8(0) + u8(12) + u16(frames) + tags;
  return QByteArray("FWS") + u8(unsigned(version)) + u32(std::uint32_t(body.size()) + 8) + body;
}

inline QByteArray showFrame() {
  return tag(1);
}
inline QByteArray end() {
  return tag(0);
}

// The edges of a rectangle in twips, clockwise, after a move to its upper left corner; style: the
// bits between, that choose fills and lines.
inline Bits& rectangleEdges(Bits& bits, int left, int top, int right, int bottom) {
  const auto line = [&](bool vertical, int by) {
    bits.raw("1 1 1111 0").raw(vertical ? "1" : "0").number(17, by);
  };
  line(false, right - left);
  line(true, bottom - top);
  line(false, left - right);
  line(true, top - bottom);
  return bits;
}

// DefineShape of a filled rectangle, in twips; rgb as 0xRRGGBB.
inline QByteArray rectangleShape(unsigned id, int left, int top, int right, int bottom,
                                 unsigned rgb) {
  Bits records;
  records.raw("0001 0000");  // one bit for fills, none for lines
  records.raw("0 00101 10001").number(17, left).number(17, top).raw("1");  // fill1 = 1, move
  rectangleEdges(records, left, top, right, bottom).raw("000000");
  return tag(2, u16(id) + rect(left, right, top, bottom) + u8(1) + u8(0) + u8(rgb >> 16U) +
                    u8((rgb >> 8U) & 255U) + u8(rgb & 255U) + u8(0) + records.bytes());
}

// The same in pixels of a square from the upper left corner.
inline QByteArray square(unsigned id, int pixels, unsigned rgb) {
  return rectangleShape(id, 0, 0, pixels * 20, pixels * 20, rgb);
}

// PlaceObject2 of a character, shifted by pixels, with or without a name.
inline QByteArray place(unsigned depth, unsigned id, int x = 0, int y = 0, const char* name = "") {
  const bool named = *name != 0;
  return tag(26, u8(named ? 0x26 : 0x06) + u16(depth) + u16(id) + shift(x * 20, y * 20) +
                     (named ? text(name) : QByteArray()));
}

// PlaceObject2 that moves what stands on a depth.
inline QByteArray moveTo(unsigned depth, int x, int y) {
  return tag(26, u8(0x05) + u16(depth) + shift(x * 20, y * 20));
}

inline QByteArray remove(unsigned depth) {
  return tag(28, u16(depth));
}

inline QByteArray sprite(unsigned id, const QByteArray& tags, unsigned frames = 1) {
  return tag(39, u16(id) + u16(frames) + tags + end());
}

// An action with its bytes; those below 0x80 have none and no length.
inline QByteArray action(unsigned code, const QByteArray& operand = {}) {
  return code < 0x80 ? u8(code) : u8(code) + u16(unsigned(operand.size())) + operand;
}
inline QByteArray doAction(const QByteArray& actions) {
  return tag(12, actions + u8(0));
}

// ActionGetURL that tells the host something.
inline QByteArray tell(const char* command, const char* args = "") {
  return action(0x83, text((QByteArray("FSCommand:") + command).constData()) + text(args));
}
inline QByteArray pushText(const char* value) {
  return action(0x96, u8(0) + text(value));
}
inline QByteArray pushNumber(std::int32_t value) {
  return action(0x96, u8(7) + u32(static_cast<std::uint32_t>(value)));
}
inline QByteArray stop() {
  return action(0x07);
}

// Tells the host the value that the actions leave on the stack: the command is "say".
inline QByteArray say(const QByteArray& actions) {
  return pushText("FSCommand:say") + actions + action(0x9A, u8(0));
}

inline platform::flash::Bytes bytesOf(const QByteArray& bytes) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.constData()),
          static_cast<std::size_t>(bytes.size())};
}

inline std::shared_ptr<const platform::flash::Movie> movie(const QByteArray& fileBytes) {
  return platform::flash::readMovie(bytesOf(fileBytes));
}

}  // namespace hand_made
