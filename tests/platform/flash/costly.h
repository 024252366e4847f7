#pragma once

#include <zlib.h>

#include <algorithm>
#include <vector>

#include "hand_made.h"

// Small movies that cost a player much, if it lets them: each makes one thing that a file can
// multiply as large as it can.
namespace costly {

using namespace hand_made;

struct Movie {
  const char* name;
  QByteArray bytes;
};

inline QByteArray repeated(const QByteArray& bytes, qsizetype times) {
  QByteArray all;
  all.reserve(bytes.size() * times);
  for (qsizetype i = 0; i < times; ++i) all += bytes;
  return all;
}

// Packs body as a movie that claims to be as long as it likes.
inline QByteArray packed(const QByteArray& body, std::uint32_t claimed = 0xFFFFFFFF) {
  uLongf size = compressBound(uLong(body.size()));
  QByteArray out(qsizetype(size), '\0');
  compress(reinterpret_cast<Bytef*>(out.data()), &size,
           reinterpret_cast<const Bytef*>(body.constData()), uLong(body.size()));
  out.truncate(qsizetype(size));
  return QByteArray("CWS") + u8(6) + u32(claimed) + out;
}

inline QByteArray header() {
  return rect(0, 2000, 0, 2000) + u8(0) + u8(12) + u16(1);
}

// Actions that are done again and again.
inline QByteArray forEver(const QByteArray& actions) {
  return actions + action(0x99, u16(0x10000U - unsigned(actions.size()) - 5));
}

// A sprite that holds another character so many times, on the depths from 1.
inline QByteArray bunch(unsigned id, unsigned of, unsigned times, const QByteArray& more = {}) {
  QByteArray inner;
  for (unsigned depth = 1; depth <= times; ++depth) inner += place(depth, of);
  return sprite(id, inner + more + showFrame());
}

// A clip named "c" with some eight thousand things in it.
inline QByteArray crowdedClip() {
  return square(1, 10, 0xFF0000) + bunch(2, 1, 16) + bunch(3, 2, 16) + bunch(4, 3, 28) +
         place(1, 4, 0, 0, "c");
}

inline QByteArray sizesAskedForEver(unsigned property) {
  return file(crowdedClip() +
              doAction(forEver(pushText("c") + pushNumber(std::int32_t(property)) + action(0x22) +
                               action(0x17))) +
              showFrame());
}

// A path that passes again and again through a clip with thousands of children.
inline QByteArray pathsThroughACrowd() {
  const QByteArray path = "c/" + repeated("z/../", 1600) + "z";
  return file(sprite(1, showFrame()) + bunch(2, 1, 7000, place(8000, 1, 0, 0, "z")) +
              place(1, 2, 0, 0, "c") +
              doAction(action(0x88, u16(1) + text(path.constData())) +
                       forEver(action(0x96, u8(8) + u8(0)) + action(0x1C) + action(0x17))) +
              showFrame());
}

// Tags that must have a body and have none.
inline QByteArray unreadableTags() {
  return packed(header() + repeated(tag(28), 16 << 20));
}

// Edges whose ends, as one number of 64 bits, have the same rest by a prime that tables of such
// numbers like to have as their size.
inline QByteArray edgesOfOneKey(unsigned id) {
  constexpr std::int64_t kPrime = 42'043;
  constexpr int kEdges = 40'000;
  const std::int64_t step = (std::int64_t(1) << 32) % kPrime;
  Bits records;
  records.raw("0001 0000  0 00101 00001 0 0 1");
  std::int64_t last = 0;
  for (std::int64_t x = 1; x < kEdges; ++x) {
    const std::int64_t y = (kPrime - x * step % kPrime) % kPrime;
    records.raw("1 1 1111 1").number(17, 1).number(17, y - last);
    last = y;
  }
  records.raw("000000");
  return tag(2, u16(id) + rect(0, 1, 0, 1) + u8(1) + u8(0) + u8(0) + u8(0) + u8(0) + u8(0) +
                    records.bytes());
}

inline QByteArray edgesThatCollide() {
  QByteArray tags;
  for (unsigned id = 1; id <= 6; ++id) tags += edgesOfOneKey(id);
  return file(tags + showFrame());
}

// A rectangle over the whole stage in a half transparent radial gradient.
inline QByteArray gradientSheet(unsigned id) {
  Bits records;
  records.raw("0001 0000  0 00101 00001 0 0 1");
  rectangleEdges(records, 0, 0, 2000, 2000).raw("000000");
  const QByteArray matrix = Bits()
                                .raw("1 01110")
                                .number(14, 4000)
                                .number(14, 4000)
                                .raw("0 01100")
                                .number(12, 1000)
                                .number(12, 1000)
                                .bytes();
  return tag(32, u16(id) + rect(0, 2000, 0, 2000) + u8(1) + u8(0x12) + matrix + u8(2) + u8(0) +
                     u32(0x80FF8000) + u8(255) + u32(0x8000FF80) + u8(0) + records.bytes());
}

// A mask over the depths that follow it.
inline QByteArray mask(unsigned depth, unsigned id, unsigned upTo) {
  return tag(26, u8(0x46) + u16(depth) + u16(id) + shift(0, 0) + u16(upTo));
}

inline QByteArray gradientsBehindMasks() {
  return file(gradientSheet(1) + square(2, 100, 0) + bunch(3, 1, 16) + bunch(4, 3, 16) +
              mask(1, 2, 60'000) + place(2, 4) + showFrame());
}

// Many masks one in the other, each thing behind another one.
inline QByteArray masksThatTakeTurns() {
  QByteArray tags = square(1, 100, 0xFF0000);
  for (unsigned depth = 1; depth < 4000; depth += 2) {
    tags += mask(depth, 1, depth + 1) + place(depth + 1, 1);
  }
  return file(tags + showFrame());
}

inline QByteArray masksInOneAnother() {
  QByteArray tags = square(1, 100, 0xFF0000);
  for (unsigned depth = 1; depth < 8000; depth += 2) {
    tags += mask(depth, 1, 60'000) + place(depth + 1, 1);
  }
  return file(tags + showFrame());
}

// Clips on a grid, each of which changes with every frame.
inline QByteArray changingClips(int each) {
  QByteArray tags =
      square(1, 1, 0xFF0000) + sprite(2, place(1, 1) + showFrame() + remove(1) + showFrame(), 2);
  for (int i = 0; i < each * each; ++i) {
    tags += place(unsigned(i) + 1, 2, i % each * 100 / each, i / each * 100 / each);
  }
  return file(tags + showFrame());
}

// Gives one clip after the other a name of eight thousand characters, the next ones every frame.
inline QByteArray longNames() {
  const QByteArray number = pushText("i") + action(0x1C);
  const QByteArray longText(8000, 'x');
  const QByteArray one = pushText("i") + number + action(0x50) + action(0x1D) +
                         pushText("c.instance") + number + action(0x21) + pushNumber(13) +
                         action(0x96, u8(8) + u8(0)) + number + action(0x21) + action(0x23);
  const QByteArray frame =
      doAction(action(0x88, u16(1) + text(longText.constData())) + repeated(one, 100)) +
      showFrame();
  return file(sprite(1, showFrame()) + bunch(2, 1, 8000) + place(1, 2, 0, 0, "c") +
                  doAction(pushText("i") + pushNumber(1) + action(0x1D)) + frame + frame,
              6, 100, 100, 2);
}

// A button of many records, recoloured again and again.
inline QByteArray buttonsRecolored() {
  const QByteArray record = u8(1) + u16(1) + u16(1) + u8(0);
  const QByteArray button = tag(7, u16(2) + repeated(record, 60'000) + u8(0));
  return packed(header() + square(1, 10, 0) + button +
                repeated(tag(23, u16(2) + Bits().raw("0 0 0000").bytes()), 4 << 20) + showFrame());
}

// Glyphs that cannot be read, thousands to a font.
inline QByteArray fontsThatCannotBeRead() {
  const QByteArray font =
      tag(48, u16(1) + u8(0) + u8(0) + u8(0) + u16(65535) + repeated(u16(65535), 65535));
  return packed(header() + repeated(font, 130) + showFrame());
}

// A glyph of many edges, written thousands of times.
inline QByteArray longGlyphWritten() {
  Bits glyph;
  glyph.raw("0001 0000  0 00101 00001 0 0 1");
  for (int i = 0; i < 100'000; ++i) {
    glyph.raw("1 1 0001 1").number(3, i % 2 == 0 ? 3 : -3).number(3, i % 3 == 0 ? 2 : -1);
  }
  glyph.raw("000000");
  const QByteArray font = tag(48, u16(1) + u8(0) + u8(0) + u8(0) + u16(1) + u16(2) + glyph.bytes());
  const QByteArray record = u8(0x88) + u16(1) + u16(400) + u8(255) + QByteArray(510, '\0');
  const QByteArray writing = tag(11, u16(2) + rect(0, 100, 0, 100) + shift(0, 0) + u8(8) + u8(8) +
                                         repeated(record, 200) + u8(0));
  return file(font + writing + place(1, 2) + showFrame());
}

// Shapes of thousands of transparent parts, thousands of times.
inline QByteArray transparentParts() {
  constexpr unsigned kFills = 8000;
  QByteArray styles = u8(255) + u16(kFills);
  Bits records;
  records.raw("1110 0000");
  for (unsigned i = 1; i <= kFills; ++i) {
    styles += u8(0) + u32(0);
    records.raw("0 00101 00001 0 0").number(14, i);
    rectangleEdges(records, 0, 0, 100, 100);
  }
  records.raw("000000");
  return file(tag(32, u16(1) + rect(0, 1, 0, 1) + styles + u8(0) + records.bytes()) +
              bunch(2, 1, 64) + bunch(3, 2, 64) + place(1, 3) + showFrame());
}

// A clip placed with very many handlers, thousands of times.
inline QByteArray handlersWithoutEnd() {
  const QByteArray handlers = u16(0) + u32(2) + repeated(u32(0x20) + u32(0), 20'000) + u32(0);
  const QByteArray placed = tag(26, u8(0x86) + u16(9) + u16(1) + shift(0, 0) + handlers);
  return file(sprite(1, showFrame()) + sprite(2, placed + showFrame()) + bunch(3, 2, 60) +
              bunch(4, 3, 60) + place(1, 4) + showFrame());
}

// Functions with a large pool each, left where only the script sees them.
inline QByteArray poolsOnTheStack() {
  const QByteArray pool = action(0x88, u16(30'000) + repeated(text("x"), 30'000));
  return file(doAction(repeated(pool + action(0x9B, text("") + u16(0) + u16(0)), 400)) +
              showFrame());
}

// A stream of blocks that tell how they are packed and hold nothing.
inline QByteArray emptyBlocks(qsizetype bytes) {
  // A block of dynamic codes: lengths of 257 codes, of which only the end of the block is used.
  class Low {
   public:
    Low& number(int width, unsigned value) {
      for (int i = 0; i < width; ++i) {
        if (used_ == 0) bytes_.append('\0');
        if (((value >> unsigned(i)) & 1U) != 0) {
          bytes_.back() = static_cast<char>(bytes_.back() | (1 << used_));
        }
        used_ = (used_ + 1) % 8;
      }
      return *this;
    }
    [[nodiscard]] const QByteArray& bytes() const { return bytes_; }

   private:
    QByteArray bytes_;
    int used_ = 0;
  };
  Low stream;
  while (stream.bytes().size() < bytes) {
    stream.number(1, 0).number(2, 2).number(5, 0).number(5, 0).number(4, 14);
    // In the format's order of lengths: 16 17 18 0 8 7 9 6 10 5 11 4 12 3 13 2 14 1.
    for (const unsigned length :
         {0U, 0U, 1U, 0U, 0U, 0U, 0U, 0U, 0U, 0U, 0U, 0U, 0U, 0U, 0U, 0U, 0U, 1U}) {
      stream.number(3, length);
    }
    // Codes: 1 is 0, 18 is 1. 138 and 118 zeros, then a one, then one distance of length one.
    stream.number(1, 1).number(7, 127).number(1, 1).number(7, 107).number(1, 0).number(1, 0);
    stream.number(1, 0);  // the end of the block
  }
  const QByteArray begin = header() + showFrame();
  const auto length = unsigned(begin.size());
  return QByteArray("CWS") + u8(6) + u32(0xFFFFFFFF) + QByteArray("\x78\x01") + u8(0) +
         u16(length) + u16(0xFFFFU - length) + begin + stream.bytes();
}

// A clip that takes the mouse, of one shape of many long curves, many times.
inline QByteArray curvesUnderTheMouse() {
  Bits records;
  records.raw("0001 0000  0 00101 00001 0 0 1");
  for (int i = 0; i < 20'000; ++i) {
    const std::int64_t sign = i % 2 == 0 ? 1 : -1;
    records.raw("1 0 1111")
        .number(17, sign * 60'000)
        .number(17, sign * 30'000)
        .number(17, -sign * 59'990)
        .number(17, -sign * 30'001);
  }
  records.raw("000000");
  const QByteArray curves = tag(2, u16(1) + rect(0, 1, 0, 1) + u8(1) + u8(0) + u8(0) + u8(0) +
                                       u8(0) + u8(0) + records.bytes());
  const QByteArray handler = u16(0) + u32(1U << 10U) + u32(1U << 10U) + u32(1) + u8(0) + u32(0);
  return file(curves + bunch(2, 1, 90) + bunch(3, 2, 90) +
              tag(26, u8(0x86) + u16(1) + u16(3) + shift(0, 0) + handler) + showFrame());
}

// A rectangle in some coats of paint, each a part of its own; coats: at most 15, sides in twips.
inline QByteArray painted(unsigned id, unsigned coats, int width, int height) {
  Bits records;
  QByteArray styles = u8(coats);
  records.raw("0100 0000");
  for (unsigned i = 1; i <= coats; ++i) {
    styles += u8(0) + u8(i) + u8(i) + u8(i);
    records.raw("0 00101 00001 0 0").number(4, i);
    rectangleEdges(records, 0, 0, width, height);
  }
  records.raw("000000");
  return tag(2, u16(id) + rect(0, 1, 0, 1) + styles + u8(0) + records.bytes());
}

// Very many small things, the lower ones in front.
inline QByteArray stairs() {
  QByteArray inner;
  for (unsigned i = 0; i < 7900; ++i) inner += place(i + 1, 2, 0, 99 - int(i * 100 / 7900));
  return file(square(1, 1, 0xFF0000) + painted(2, 6, 1990, 30) + inner + showFrame());
}

// Squares in eight coats each beside the stage, where they are not painted; the first can be a mask
// over the others.
inline QByteArray squaresBeside(unsigned squares, bool masked = false) {
  QByteArray tags = painted(1, 8, 20, 20);
  if (masked) tags += mask(1, 1, 60'000);
  for (unsigned depth = masked ? 2 : 1; depth <= squares; ++depth) tags += place(depth, 1, 200);
  return file(tags + showFrame());
}

inline std::vector<Movie> movies() {
  return {
      {"width asked for ever", sizesAskedForEver(8)},
      {"height asked for ever", sizesAskedForEver(9)},
      {"paths through a crowd", pathsThroughACrowd()},
      {"unreadable tags", unreadableTags()},
      {"edges that collide", edgesThatCollide()},
      {"gradients behind masks", gradientsBehindMasks()},
      {"masks that take turns", masksThatTakeTurns()},
      {"masks in one another", masksInOneAnother()},
      {"changing clips", changingClips(64)},
      {"long names", longNames()},
      {"buttons recoloured", buttonsRecolored()},
      {"fonts that cannot be read", fontsThatCannotBeRead()},
      {"a long glyph written", longGlyphWritten()},
      {"transparent parts", transparentParts()},
      {"handlers without end", handlersWithoutEnd()},
      {"pools on the stack", poolsOnTheStack()},
      {"empty blocks", emptyBlocks(15 << 20)},
      {"curves under the mouse", curvesUnderTheMouse()},
      {"stairs", stairs()},
  };
}

}  // namespace costly
