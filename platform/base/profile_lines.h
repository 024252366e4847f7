#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <bitset>
#include <memory>
#include <vector>

#include "platform/base/text_encoding.h"

namespace platform::inline base {

// The line reader for large profile files: the first line that begins with a key wins, whatever
// section it stands in. Keys are compared with case, from the first column, and a key that is the
// beginning of a longer one matches that, too. The value is what follows the key and one more
// character, without its first and last character (the quotes). A line ends with LF, CR LF or CR.
//
// The file is never held: it is read once through and then in parts of 64 KiB. What stays in
// memory is one filter of 8 KiB for each part, and for each of several parts once the file passes
// 128 MiB: an eighth of the file, 16 MiB at most. A filter knows the beginnings of the lines that
// begin in its part, so that a lookup reads only the few parts that can hold the key.
//
// A file that shrinks under the reader gives empty values; noticing that it changed is the
// caller's.
class ProfileLines final {
 public:
  static constexpr qint64 kPartSize = 65536;
  static constexpr qint64 kMostFilters = 2048;
  // What is kept of a value, in characters: far beyond any text on a form.
  static constexpr qsizetype kLongestValue = 32767;

  // file: open for reading, with random access. Reads it once through.
  explicit ProfileLines(std::unique_ptr<QIODevice> file);

  // Empty where no line begins with the key, and for an empty key.
  [[nodiscard]] QString value(const QString& key);

  // The bytes that the filters take.
  [[nodiscard]] std::size_t filterSize() const { return filters_.size() * sizeof(Filter); }

 private:
  // A bit for each beginning of up to this many bytes of the text before a line's first "=".
  static constexpr qsizetype kLongestBeginning = 32;
  using Filter = std::bitset<65536>;

  // A part with its surroundings: own bytes begin at index 1, after the byte that tells whether the
  // part starts a line; what follows them belongs to later parts.
  struct Part {
    QByteArray bytes;
    qsizetype ownEnd = 1;
  };

  [[nodiscard]] Part readPart(qint64 index, qsizetype more);
  [[nodiscard]] QByteArray readAt(qint64 offset, qint64 size);
  [[nodiscard]] bool mayHold(const Filter& filter, const QByteArray& key) const;
  [[nodiscard]] QString valueAt(qint64 offset);

  std::unique_ptr<QIODevice> file_;
  qint64 size_ = 0;
  qint64 partsPerFilter_ = 1;
  std::vector<Filter> filters_;
  TextEncoding encoding_ = TextEncoding::Utf8;
};

}  // namespace platform::inline base
