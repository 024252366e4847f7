#include <QByteArrayView>

#include "platform/flash/bit_reader.h"
#include "platform/flash/definitions.h"
#include "platform/flash/shape_reader.h"
#include "platform/flash/structures.h"

namespace platform::flash {

namespace {

// Reads glyphs that begin at the offsets, counted from tableAt; the last one ends where the body
// does. A glyph that cannot be read is empty, the others are read all the same.
Font readGlyphs(ByteReader& body, std::size_t tableAt, const std::vector<std::size_t>& offsets,
                Allowance& allowance) {
  Font font;
  for (const std::size_t offset : offsets) {
    allowance.spend(sizeof(Outline));
    font.glyphs.emplace_back();
    try {
      body.seek(tableAt + offset);
      font.glyphs.back() = readGlyph(body, allowance);
    } catch (const MovieError&) {
      constexpr std::int64_t kFaultWork = 5000;
      allowance.work(kFaultWork);
    }
  }
  return font;
}

}  // namespace

Font readFont(ByteReader& body, Allowance& allowance) {
  const std::size_t tableAt = body.position();
  std::vector<std::size_t> offsets;
  if (body.atEnd()) {
    return {};
  }
  // The first offset tells how long the table is, since the first glyph follows it.
  offsets.push_back(body.u16());
  for (std::size_t i = 1; i < offsets.front() / 2; ++i) {
    offsets.push_back(body.u16());
  }
  return readGlyphs(body, tableAt, offsets, allowance);
}

Font readFont2(ByteReader& body, double unitsPerEm, Allowance& allowance) {
  constexpr unsigned kWideOffsets = 0x08;
  const unsigned flags = body.u8();
  body.skip(1);          // language
  body.skip(body.u8());  // name
  const std::size_t count = body.u16();
  const std::size_t tableAt = body.position();
  std::vector<std::size_t> offsets;
  for (std::size_t i = 0; i < count; ++i) {
    offsets.push_back((flags & kWideOffsets) != 0 ? body.u32() : body.u16());
  }
  Font font = readGlyphs(body, tableAt, offsets, allowance);
  font.unitsPerEm = unitsPerEm;
  return font;
}

namespace {

// How the glyphs that follow are set.
struct Setting {
  const Font* font = nullptr;
  QRgb color = qRgb(0, 0, 0);
  double height = 0;
  double x = 0;
  double y = 0;
};

// What a record changes of it. flags: the record's first byte.
void change(Setting& setting, unsigned flags, ByteReader& body, bool withAlpha,
            const Movie& movie) {
  constexpr unsigned kHasFont = 8;
  constexpr unsigned kHasColor = 4;
  constexpr unsigned kHasY = 2;
  constexpr unsigned kHasX = 1;
  if ((flags & kHasFont) != 0) {
    const Character* character = movie.character(body.u16());
    setting.font = character == nullptr ? nullptr : character->as<Font>();
  }
  if ((flags & kHasColor) != 0) {
    setting.color = readColor(body, withAlpha);
  }
  setting.x = (flags & kHasX) != 0 ? body.s16() : setting.x;
  setting.y = (flags & kHasY) != 0 ? body.s16() : setting.y;
  setting.height = (flags & kHasFont) != 0 ? body.u16() : setting.height;
}

// A glyph of the font, where it has one of that number.
void addGlyph(Text& text, const Setting& setting, std::size_t glyph, const ReadContext& context) {
  constexpr std::int64_t kSegmentWork = 8;
  const Font* font = setting.font;
  if (font == nullptr || glyph >= font->glyphs.size() || font->glyphs[glyph].isEmpty()) return;
  const Outline& outline = font->glyphs[glyph];
  context.allowance.spend(sizeof(Text::Glyph));
  context.allowance.work(kSegmentWork, outline.segments().size());
  const double scale = setting.height / font->unitsPerEm;
  text.glyphs.push_back({&outline, QTransform(scale, 0, 0, scale, setting.x, setting.y),
                         setting.color, outline.bounds()});
}

}  // namespace

Text readText(ByteReader& body, bool withAlpha, const ReadContext& context) {
  constexpr std::int64_t kGlyphWork = 20;
  Text text;
  (void)readRect(body);
  text.matrix = readMatrix(body);
  const int glyphBits = body.u8();
  const int advanceBits = body.u8();
  if (glyphBits > 32 || advanceBits > 32) {
    throw MovieError("a glyph has too many bits", body.position());
  }
  Setting setting;
  for (unsigned flags = body.u8(); flags != 0; flags = body.u8()) {
    change(setting, flags, body, withAlpha, context.movie);
    int count = body.u8();
    BitReader bits(body);
    for (; count > 0; --count) {
      context.allowance.work(kGlyphWork);
      const std::size_t glyph = bits.unsignedBits(glyphBits);
      const double advance = bits.signedBits(advanceBits);
      addGlyph(text, setting, glyph, context);
      setting.x += advance;
    }
  }
  return text;
}

}  // namespace platform::flash
