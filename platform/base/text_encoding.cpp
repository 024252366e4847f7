#include "platform/base/text_encoding.h"

#include <algorithm>
#include <array>

namespace platform::inline base {

namespace {

// Windows-1252 is Latin-1 but for these, the bytes 0x80 to 0x9F.
constexpr char16_t kFirstOfTable = 0x80;
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t fromWindows1252(unsigned char byte) {
  const auto index = static_cast<std::size_t>(byte) - kFirstOfTable;
  return index < kWindows1252.size() ? kWindows1252[index] : char16_t{byte};
}

char toWindows1252(char16_t character) {
  const auto found = std::find(kWindows1252.begin(), kWindows1252.end(), character);
  if (found != kWindows1252.end()) {
    return static_cast<char>(kFirstOfTable + (found - kWindows1252.begin()));
  }
  const bool isLatin1 = character < kFirstOfTable || (character > 0x9F && character <= 0xFF);
  return isLatin1 ? static_cast<char>(character) : '?';
}

constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

}  // namespace

void Utf8Check::add(QByteArrayView part) {
  if (decoder_.hasError()) return;
  scratch_.resize(std::max(scratch_.size(), decoder_.requiredSpace(part.size())));
  decoder_.appendToBuffer(scratch_.data(), part);
}

bool Utf8Check::finish() {
  // The decoder keeps the beginning of a character for later; a letter shows that it was one.
  add("x");
  return !decoder_.hasError();
}

TextEncoding encodingOf(QByteArrayView text) {
  Utf8Check check;
  check.add(text);
  return check.finish() ? TextEncoding::Utf8 : TextEncoding::Windows1252;
}

QString decodeText(QByteArrayView bytes, TextEncoding encoding) {
  if (encoding == TextEncoding::Utf8) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(bytes);
  }
  QString text(bytes.size(), Qt::Uninitialized);
  std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) {
    return QChar(fromWindows1252(static_cast<unsigned char>(byte)));
  });
  return text;
}

QByteArray encodeText(QStringView text, TextEncoding encoding) {
  if (encoding == TextEncoding::Utf8) return text.toUtf8();
  QByteArray bytes;
  bytes.reserve(text.size());
  for (const QChar character : text) {
    // A pair of surrogates is one character.
    if (!character.isLowSurrogate()) bytes += toWindows1252(character.unicode());
  }
  return bytes;
}

qsizetype byteOrderMarkSize(QByteArrayView text) {
  return text.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
}

}  // namespace platform::inline base
