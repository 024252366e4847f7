#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <cstdint>
#include <memory>
#include <optional>

namespace platform::inline base {

// What the system at hand does in its own way with files.

// What tells one state of a file from another.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::int64_t size = 0;
  // Nanoseconds since 1970. The second moves with every change, also one that sets the first.
  std::int64_t modified = 0;
  std::int64_t changed = 0;

  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

// The stamp of a file as it is now, links followed; nothing where there is none of that name, or
// something that is no file.
[[nodiscard]] std::optional<FileStamp> stampOf(const QString& path);

// The file, open for reading without a buffer, in a way that stands in nobody's way who writes it
// or puts another in its place. Null where it cannot be opened.
[[nodiscard]] std::unique_ptr<QFile> openWatched(const QString& path);

// Whether this user may write a file, or make files in a folder, by all that the system asks.
[[nodiscard]] bool mayWrite(const QString& path);

// After a write that failed for the time that is told, counted from 1: waits a moment and says
// whether another try may do. A virus guard holds what was just written for a while; where there is
// none, and after a second, it is not worth while.
[[nodiscard]] bool isWorthAnotherTry(int tried);

// What ends the lines of a text that is new.
[[nodiscard]] QByteArray lineEnd();

}  // namespace platform::inline base
