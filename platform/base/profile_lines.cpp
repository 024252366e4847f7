#include "platform/base/profile_lines.h"

#include <algorithm>
#include <cstdint>

namespace platform::inline base {

namespace {

// The bit for each beginning of a text, one byte longer at a time. Any function that spreads well
// does; a clash only costs the reading of a part.
class BeginningHash {
 public:
  [[nodiscard]] std::size_t add(char byte) {
    state_ = (state_ ^ static_cast<unsigned char>(byte)) * 0x9E3779B97F4A7C15U;
    state_ ^= state_ >> 29U;
    return state_ >> 48U;
  }

 private:
  std::uint64_t state_ = 0xCBF29CE484222325U;
};

// Calls visit(index) for each line that begins at an index from 1 up to end, until it returns true.
template <typename Visit>
void forEachLineBegin(const QByteArray& bytes, qsizetype end, Visit visit) {
  const char* data = bytes.constData();
  for (qsizetype i = 1; i < end; ++i) {
    if (isLineEnd(data[i - 1]) && visit(i)) return;
  }
}

QString withoutFirstCharacter(const QString& text) {
  const bool pair = text.size() >= 2 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
  return text.mid(pair ? 2 : 1);
}

QString withoutLastCharacter(QString text) {
  const qsizetype size = text.size();
  const bool pair =
      size >= 2 && text[size - 1].isLowSurrogate() && text[size - 2].isHighSurrogate();
  text.chop(pair ? 2 : 1);
  return text;
}

}  // namespace

ProfileLines::ProfileLines(std::unique_ptr<QIODevice> file)
    : file_(std::move(file)), size_(file_->size()) {
  const qint64 parts = (size_ + kPartSize - 1) / kPartSize;
  partsPerFilter_ = std::max<qint64>(1, (parts + kMostFilters - 1) / kMostFilters);
  filters_.resize(static_cast<std::size_t>((parts + partsPerFilter_ - 1) / partsPerFilter_));
  Utf8Check check;
  for (qint64 index = 0; index < parts; ++index) {
    const Part part = readPart(index, kLongestBeginning);
    check.add(QByteArrayView(part.bytes).sliced(1, part.ownEnd - 1));
    Filter& filter = filters_[static_cast<std::size_t>(index / partsPerFilter_)];
    forEachLineBegin(part.bytes, part.ownEnd, [&](qsizetype begin) {
      BeginningHash hash;
      const qsizetype end = std::min(begin + kLongestBeginning, part.bytes.size());
      for (qsizetype i = begin; i < end; ++i) {
        const char byte = part.bytes[i];
        if (byte == '=' || isLineEnd(byte)) break;
        filter.set(hash.add(byte));
      }
      return false;
    });
  }
  encoding_ = check.finish() ? TextEncoding::Utf8 : TextEncoding::Windows1252;
}

QByteArray ProfileLines::readAt(qint64 offset, qint64 size) {
  if (offset >= size_ || !file_->seek(offset)) return {};
  return file_->read(std::min(size, size_ - offset));
}

ProfileLines::Part ProfileLines::readPart(qint64 index, qsizetype more) {
  const qint64 offset = index * kPartSize;
  Part part;
  if (index > 0) {
    part.bytes = readAt(offset - 1, 1 + kPartSize + more);
    if (part.bytes.isEmpty()) part.bytes = QByteArray(1, '\0');
  } else {
    part.bytes = '\n' + readAt(0, kPartSize + more);
    // Empty lines in the place of the byte-order mark: the first line begins after it.
    const qsizetype mark = byteOrderMarkSize(QByteArrayView(part.bytes).sliced(1));
    std::fill_n(part.bytes.begin() + 1, mark, '\n');
  }
  part.ownEnd = std::min<qsizetype>(part.bytes.size(), 1 + kPartSize);
  return part;
}

bool ProfileLines::mayHold(const Filter& filter, const QByteArray& key) const {
  BeginningHash hash;
  for (const char byte : QByteArrayView(key).first(std::min(key.size(), kLongestBeginning))) {
    if (byte == '=') break;
    if (!filter.test(hash.add(byte))) return false;
  }
  return true;
}

QString ProfileLines::value(const QString& key) {
  const QByteArray bytes = encodeText(key, encoding_);
  // What the encoding lacks, what spans lines, or what is longer than any sensible line, is no key.
  const bool isKey = !bytes.isEmpty() && bytes.size() <= kPartSize &&
                     std::none_of(bytes.begin(), bytes.end(), isLineEnd) &&
                     decodeText(bytes, encoding_) == key;
  if (!isKey) return {};
  for (qint64 index = 0; index * kPartSize < size_; ++index) {
    if (!mayHold(filters_[static_cast<std::size_t>(index / partsPerFilter_)], bytes)) continue;
    const Part part = readPart(index, bytes.size());
    qsizetype found = -1;
    forEachLineBegin(part.bytes, part.ownEnd, [&](qsizetype begin) {
      if (QByteArrayView(part.bytes).sliced(begin).startsWith(bytes)) found = begin;
      return found >= 0;
    });
    if (found >= 0) return valueAt(index * kPartSize + found - 1 + bytes.size());
  }
  return {};
}

QString ProfileLines::valueAt(qint64 offset) {
  // No character takes more than three bytes for each of its units; three more make up for the
  // characters that are dropped.
  const QByteArray rest = readAt(offset, 3 * (kLongestValue + 3));
  const auto end = std::find_if(rest.begin(), rest.end(), isLineEnd);
  const bool isWhole = end != rest.end() || offset + rest.size() >= size_;
  QString value = decodeText(QByteArrayView(rest).first(end - rest.begin()), encoding_);
  value = withoutFirstCharacter(withoutFirstCharacter(value));
  if (isWhole) value = withoutLastCharacter(value);
  const qsizetype nul = value.indexOf(QChar(u'\0'));
  if (nul >= 0) value.truncate(nul);
  if (value.size() <= kLongestValue) return value;
  value.truncate(kLongestValue);
  return value.back().isHighSurrogate() ? value.chopped(1) : value;
}

}  // namespace platform::inline base
