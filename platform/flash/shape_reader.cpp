#include "platform/flash/shape_reader.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/flash/bit_reader.h"
#include "platform/flash/shape_builder.h"
#include "platform/flash/structures.h"

namespace platform::flash {

namespace {

constexpr int kSolidFill = 0x00;
constexpr int kLinearFill = 0x10;
constexpr int kRadialFill = 0x12;
constexpr int kFocalFill = 0x13;
constexpr int kBitmapFills = 0x40;  // to 0x43

struct StyleReader {
  ByteReader& bytes;
  ShapeVersion version;
  Allowance& allowance;

  [[nodiscard]] bool withAlpha() const { return version >= ShapeVersion::Three; }
  std::size_t count();
  Gradient gradient(int type);
  Paint fill();
  LineStyle line();
  LineStyle lineWithCaps();
  // Fills, then lines, into the builder.
  void styles(ShapeBuilder& builder);
};

std::size_t StyleReader::count() {
  const std::size_t count = bytes.u8();
  return count == 0xFF && version >= ShapeVersion::Two ? bytes.u16() : count;
}

Gradient StyleReader::gradient(int type) {
  Gradient gradient;
  gradient.radial = type != kLinearFill;
  gradient.matrix = readMatrix(bytes);
  // The upper bits tell how the ends go on and how to mix, from version 8; here always padded and
  // plain.
  const int stops = bytes.u8() & 0x0F;
  allowance.spend(stops * sizeof(Gradient::Stop));
  int lastRatio = 0;
  for (int i = 0; i < stops; ++i) {
    lastRatio = std::max<int>(lastRatio, bytes.u8());
    gradient.stops.push_back({lastRatio, readColor(bytes, withAlpha())});
  }
  if (type == kFocalFill) {
    bytes.skip(2);
  }
  return gradient;
}

Paint StyleReader::fill() {
  Paint paint;
  const int type = bytes.u8();
  if (type == kSolidFill) {
    paint.kind = Paint::Kind::Solid;
    paint.color = readColor(bytes, withAlpha());
  } else if (type == kLinearFill || type == kRadialFill || type == kFocalFill) {
    paint.kind = Paint::Kind::Gradient;
    paint.gradient = gradient(type);
  } else if (type >= kBitmapFills && type < kBitmapFills + 4) {
    bytes.skip(2);
    (void)readMatrix(bytes);
  } else {
    throw MovieError("a fill is of no known type", bytes.position());
  }
  return paint;
}

LineStyle StyleReader::line() {
  if (version >= ShapeVersion::Four) {
    return lineWithCaps();
  }
  LineStyle line;
  line.width = bytes.u16();
  line.paint.kind = Paint::Kind::Solid;
  line.paint.color = readColor(bytes, withAlpha());
  return line;
}

LineStyle StyleReader::lineWithCaps() {
  constexpr unsigned kMiterJoin = 2;
  LineStyle line;
  line.width = bytes.u16();
  const unsigned first = bytes.u8();  // start cap 2, join 2, has fill 1, three scaling flags
  bytes.skip(1);
  if (((first >> 4U) & 3U) == kMiterJoin) {
    bytes.skip(2);
  }
  if ((first & 8U) != 0) {
    line.paint = fill();
  } else {
    line.paint.kind = Paint::Kind::Solid;
    line.paint.color = readColor(bytes, true);
  }
  return line;
}

void StyleReader::styles(ShapeBuilder& builder) {
  std::vector<Paint> fills;
  for (std::size_t left = count(); left > 0; --left) {
    allowance.spend(sizeof(Paint));
    fills.push_back(fill());
  }
  std::vector<LineStyle> lines;
  for (std::size_t left = count(); left > 0; --left) {
    allowance.spend(sizeof(LineStyle));
    lines.push_back(line());
  }
  builder.newStyles(std::move(fills), std::move(lines));
}

// Reads the records of edges and changes of style up to their end. One object reads one shape.
class RecordReader {
 public:
  // A null version: a glyph, which can have no new styles.
  RecordReader(ByteReader& bytes, const ShapeVersion* version, Allowance& allowance)
      : bytes_(bytes), bits_(bytes), version_(version), allowance_(allowance) {}

  void read(ShapeBuilder& builder) {
    readIndexWidths();
    constexpr std::int64_t kRecordWork = 40;
    for (;;) {
      allowance_.work(kRecordWork);
      if (bits_.flag()) {
        readEdge(builder);
        continue;
      }
      const unsigned changes = bits_.unsignedBits(5);
      if (changes == 0) {
        break;
      }
      readChange(builder, changes);
    }
    bits_.align();
  }

 private:
  void readIndexWidths() {
    fillBits_ = static_cast<int>(bits_.unsignedBits(4));
    lineBits_ = static_cast<int>(bits_.unsignedBits(4));
  }

  void readEdge(ShapeBuilder& builder) {
    const bool straight = bits_.flag();
    const int width = static_cast<int>(bits_.unsignedBits(4)) + 2;
    if (!straight) {
      const int controlX = bits_.signedBits(width);
      const int controlY = bits_.signedBits(width);
      const int x = bits_.signedBits(width);
      builder.curveBy(controlX, controlY, x, bits_.signedBits(width));
    } else if (bits_.flag()) {
      const int x = bits_.signedBits(width);
      builder.lineBy(x, bits_.signedBits(width));
    } else if (bits_.flag()) {
      builder.lineBy(0, bits_.signedBits(width));
    } else {
      builder.lineBy(bits_.signedBits(width), 0);
    }
  }

  void readChange(ShapeBuilder& builder, unsigned changes) {
    constexpr unsigned kNewStyles = 16;
    constexpr unsigned kLine = 8;
    constexpr unsigned kFill1 = 4;
    constexpr unsigned kFill0 = 2;
    constexpr unsigned kMove = 1;
    if ((changes & kMove) != 0) {
      const int width = static_cast<int>(bits_.unsignedBits(5));
      const int x = bits_.signedBits(width);
      builder.moveTo(x, bits_.signedBits(width));
    }
    // The indices stand before new styles in the tag but count in them.
    const auto index = [&](unsigned flag, int width) {
      return (changes & flag) != 0 ? std::optional(bits_.unsignedBits(width)) : std::nullopt;
    };
    const auto newFill0 = index(kFill0, fillBits_);
    const auto newFill1 = index(kFill1, fillBits_);
    const auto newLine = index(kLine, lineBits_);
    if ((changes & kNewStyles) != 0) {
      if (version_ == nullptr || *version_ < ShapeVersion::Two) {
        throw MovieError("new styles where none can be", bytes_.position());
      }
      bits_.align();
      StyleReader{bytes_, *version_, allowance_}.styles(builder);
      readIndexWidths();
    }
    if (newFill0) {
      builder.setFill0(*newFill0);
    }
    if (newFill1) {
      builder.setFill1(*newFill1);
    }
    if (newLine) {
      builder.setLine(*newLine);
    }
  }

  ByteReader& bytes_;
  BitReader bits_;
  const ShapeVersion* version_;
  Allowance& allowance_;
  int fillBits_ = 0;
  int lineBits_ = 0;
};

}  // namespace

Shape readShape(ByteReader& bytes, ShapeVersion version, Allowance& allowance) {
  ShapeBuilder builder(allowance);
  StyleReader{bytes, version, allowance}.styles(builder);
  RecordReader(bytes, &version, allowance).read(builder);
  return builder.take();
}

Outline readGlyph(ByteReader& bytes, Allowance& allowance) {
  ShapeBuilder builder(allowance);
  Paint ink;
  ink.kind = Paint::Kind::Solid;
  builder.newStyles({ink}, {});
  RecordReader(bytes, nullptr, allowance).read(builder);
  Shape shape = builder.take();
  return shape.parts.empty() ? Outline() : std::move(shape.parts.front().outline);
}

}  // namespace platform::flash
