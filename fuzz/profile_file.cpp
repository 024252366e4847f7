// Any bytes as a profile file, in both of its readers and in the writer. The first byte of the
// input chooses how long the key is, the key comes next, the rest is the file.
#include <QBuffer>
#include <algorithm>
#include <cstdlib>
#include <memory>

#include "platform/base/profile_lines.h"
#include "platform/base/profile_text.h"
#include "platform/base/text_encoding.h"

using platform::ProfileLines;
using platform::ProfileText;

namespace {

// Ends the run where a promise is broken; assert() would not in an optimised build.
void require(bool promise) {
  if (!promise) std::abort();
}

bool isLineEnd(char byte) {
  return byte == '\n' || byte == '\r';
}

// What the reader by lines must find, told line by line from the whole file in memory.
QString firstValueOf(const QByteArray& file, const QByteArray& key,
                     platform::TextEncoding encoding) {
  qsizetype begin = platform::byteOrderMarkSize(file);
  while (begin <= file.size()) {
    qsizetype end = begin;
    while (end < file.size() && !isLineEnd(file[end])) ++end;
    const QByteArrayView line = QByteArrayView(file).sliced(begin, end - begin);
    if (line.startsWith(key)) {
      // The sign, both quotes; then what stands before a NUL.
      const auto characters = platform::decodeText(line.sliced(key.size()), encoding).toUcs4();
      if (characters.size() < 4) return {};
      QString value;
      for (const char32_t character : characters.sliced(2, characters.size() - 3)) {
        if (character == 0) break;
        value += QChar::fromUcs4(character);
      }
      return value;
    }
    begin = end + 1;
  }
  return {};
}

void readByLines(const QByteArray& file, const QByteArray& keyBytes) {
  const auto encoding = platform::encodingOf(file);
  const QString key = platform::decodeText(keyBytes, encoding);
  const QByteArray encoded = platform::encodeText(key, encoding);
  const bool isKey = !encoded.isEmpty() && platform::decodeText(encoded, encoding) == key &&
                     std::none_of(encoded.begin(), encoded.end(), isLineEnd);
  auto device = std::make_unique<QBuffer>();
  device->setData(file);
  device->open(QIODevice::ReadOnly);
  ProfileLines lines(std::move(device));
  require(lines.value(key) == (isKey ? firstValueOf(file, encoded, encoding) : QString()));
}

void writeAndRead(const QByteArray& file, const QString& key) {
  const QString section = QStringLiteral("FormMenu");
  const QString value = QStringLiteral(" \"nuovo\"");
  const auto written = ProfileText::withValue(file, section, key, value);
  if (!written) return;
  const QString plainKey = QStringLiteral("k");
  require(ProfileText(*written).value(section, key) == value ||
          platform::encodingOf(*written) != platform::encodingOf(file) ||
          platform::encodingOf(file) != platform::TextEncoding::Utf8);
  const auto again = ProfileText::withValue(*written, section, key, value);
  require(again &&
          (*again == *written || platform::encodingOf(file) != platform::TextEncoding::Utf8));
  const auto other = ProfileText::withValue(file, section, plainKey, value);
  require(other && ProfileText(*other).value(section, plainKey) == value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) return 0;
  const QByteArray input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const qsizetype keySize = std::min<qsizetype>(input[0] & 0x1F, input.size() - 1);
  const QByteArray key = input.mid(1, keySize);
  const QByteArray file = input.mid(1 + keySize);

  const ProfileText text(file);
  const QString value =
      text.value(QString(), platform::decodeText(key, platform::encodingOf(file)));
  require(value.size() <= ProfileText::kLongestValue);
  readByLines(file, key);
  // A piece of the file is a key that its lines are likely to have.
  readByLines(file, file.mid(keySize, 1 + (input[0] >> 5 & 0x7)));
  writeAndRead(file, QString::fromUtf8(key));
  return 0;
}
