#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QString>
#include <optional>
#include <utility>

namespace platform::inline base {

// The text of a profile file of ordinary size, read whole: `[section]` lines, `key=value` lines,
// `;` comments; every other line is ignored. A line ends with LF, CR LF or CR. Blanks and tabs
// around section, key and value fall away, and so does one pair of double quotes around the value.
// Section and key match without case, and the first match wins, also over several sections of one
// name. Looking a value up does not depend on the length of the text.
class ProfileText final {
 public:
  // A longer value is cut; no character outside of the basic plane is cut in two.
  static constexpr qsizetype kLongestValue = 511;

  ProfileText() = default;
  // bytes: any bytes at all. They are not kept.
  explicit ProfileText(QByteArrayView bytes);

  // The value up to its first NUL; empty where the text has no such key.
  [[nodiscard]] QString value(const QString& section, const QString& key) const;

  // The text with that one value replaced or added, all its other bytes kept: its byte-order mark,
  // its encoding, its line ends. A new key goes to the end of its section, a new section to the end
  // of the text. Characters that the text's encoding lacks become "?". Nothing when one of the
  // three cannot be written in this format (a line break or NUL in one of them, an empty section or
  // key, a "]" in the section, a "=" in the key, or a key that would read as another kind of line).
  [[nodiscard]] static std::optional<QByteArray> withValue(const QByteArray& text,
                                                           const QString& section,
                                                           const QString& key,
                                                           const QString& value);

 private:
  // Section and key, folded.
  QHash<std::pair<QString, QString>, QString> values_;
};

}  // namespace platform::inline base
