// Any bytes as a profile file, in both of its readers and in the writer. The first byte of the
// input chooses how long the key is, the key comes next, the rest is the file.
#include <QBuffer>
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

// Whether any line begins with the key: what the reader by lines must know without its filters.
bool anyLineBeginsWith(const QByteArray& file, const QByteArray& key) {
  qsizetype begin = platform::byteOrderMarkSize(file);
  while (begin <= file.size()) {
    if (QByteArrayView(file).sliced(begin).startsWith(key)) return true;
    while (begin < file.size() && !isLineEnd(file[begin])) ++begin;
    ++begin;
  }
  return false;
}

void readByLines(const QByteArray& file, const QByteArray& keyBytes) {
  const auto encoding = platform::encodingOf(file);
  const QString key = platform::decodeText(keyBytes, encoding);
  auto device = std::make_unique<QBuffer>();
  device->setData(file);
  device->open(QIODevice::ReadOnly);
  ProfileLines lines(std::move(device));
  const QString value = lines.value(key);
  require(value.size() <= ProfileLines::longestValue);
  require(value.isEmpty() || anyLineBeginsWith(file, platform::encodeText(key, encoding)));
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
  require(again.has_value());
  require(*again == *written || platform::encodingOf(file) != platform::TextEncoding::Utf8);
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
  require(value.size() <= ProfileText::longestValue);
  readByLines(file, key);
  writeAndRead(file, QString::fromUtf8(key));
  return 0;
}
