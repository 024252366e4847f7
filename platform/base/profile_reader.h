#pragma once

#include <QString>
#include <cstdint>
#include <deque>
#include <memory>
#include <variant>

#include "platform/base/profile_lines.h"
#include "platform/base/profile_text.h"

namespace platform {

// Reads values of profile files and remembers the files read last, so that a form's hundred lookups
// cost one reading. Each read looks at the file's size, time and identity first; a file that
// changed or vanished is noticed there.
//
// How a file is read depends on its size alone: see ProfileText up to smallFile bytes, ProfileLines
// above.
class ProfileReader final {
 public:
  // The largest file, in bytes, that is read as sections and keys.
  static constexpr qint64 smallFile = 64000;

  // The value; empty where the file has no such key or cannot be opened. Throws
  // RunTimeError(FileNotFound) where there is no file of that name.
  [[nodiscard]] QString read(const QString& path, const QString& section, const QString& key);

 private:
  // Enough for the language file and the file that names it.
  static constexpr std::size_t mostRemembered = 2;

  // What tells one state of a file from another.
  struct Stamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    // Nanoseconds since 1970. The second moves with every change, also one that sets the first.
    std::int64_t modified = 0;
    std::int64_t changed = 0;

    friend bool operator==(const Stamp&, const Stamp&) = default;
  };

  struct Remembered {
    QString path;
    Stamp stamp;
    // The file had just changed when it was read: its next change could bear the same time.
    bool isFresh = false;
    std::variant<ProfileText, std::unique_ptr<ProfileLines>> content;
  };

  [[nodiscard]] static Stamp stampOf(const QString& path);
  [[nodiscard]] static Remembered load(const QString& path, const Stamp& stamp);
  // Its first element is what was asked for.
  void bringToFront(const QString& path);

  std::deque<Remembered> remembered_;  // the one used last comes first
};

}  // namespace platform
