#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringConverter>
#include <QStringView>

namespace platform::inline base {

// How the text of a file is held. A file is UTF-8 when all of it is; any other is read as
// Windows-1252, in which every byte means something.
enum class TextEncoding { Utf8, Windows1252 };

// Whether a byte ends a line of a text file, alone or together with another.
constexpr bool isLineEnd(char byte) {
  return byte == '\n' || byte == '\r';
}

// Tells, from parts of a text given one after another, whether the whole is valid UTF-8.
class Utf8Check final {
 public:
  void add(QByteArrayView part);
  // Nothing can be added after this: a character that the text's end cuts in two counts as wrong.
  [[nodiscard]] bool finish();

 private:
  QStringDecoder decoder_{QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom};
  QString scratch_;
};

[[nodiscard]] TextEncoding encodingOf(QByteArrayView text);

// A byte-order mark is a character like any other here: whoever reads a file drops it first. The
// five bytes that Windows-1252 leaves open mean the control characters of the same number.
[[nodiscard]] QString decodeText(QByteArrayView bytes, TextEncoding encoding);

// What the encoding has no bytes for becomes "?".
[[nodiscard]] QByteArray encodeText(QStringView text, TextEncoding encoding);

// How many bytes the UTF-8 byte-order mark at the beginning of the text takes: 3 or 0.
[[nodiscard]] qsizetype byteOrderMarkSize(QByteArrayView text);

}  // namespace platform::inline base
