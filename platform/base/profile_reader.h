#pragma once

#include <QString>
#include <deque>
#include <memory>
#include <variant>

#include "platform/base/profile_lines.h"
#include "platform/base/profile_text.h"
#include "platform/base/system_files.h"

namespace platform::inline base {

// Reads values of profile files and remembers the files read last, so that a form's hundred lookups
// cost one reading. Each read looks at the file's size, time and identity first; a file that
// changed or vanished is noticed there.
//
// How a file is read depends on its size alone: see ProfileText up to smallFile bytes, ProfileLines
// above.
class ProfileReader final {
 public:
  // The largest file, in bytes, that is read as sections and keys.
  static constexpr qint64 kSmallFile = 64000;

  // The value; empty where the file has no such key or cannot be opened. Throws
  // RunTimeError(FileNotFound) where there is no file of that name.
  [[nodiscard]] QString read(const QString& path, const QString& section, const QString& key);

 private:
  // Enough for the language file and the file that names it.
  static constexpr std::size_t kMostRemembered = 2;

  struct Remembered {
    QString path;
    FileStamp stamp;
    // To be read again: the file had just changed, so that its next change could bear the same
    // time, or it could not be read.
    bool isUnsure = false;
    std::variant<ProfileText, std::unique_ptr<ProfileLines>> content;
  };

  [[nodiscard]] static Remembered load(const QString& path, const FileStamp& stamp);
  // Its first element is what was asked for.
  void bringToFront(const QString& path);

  std::deque<Remembered> remembered_;  // the one used last comes first
};

}  // namespace platform::inline base
