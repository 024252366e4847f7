#include "platform/base/system_files.h"

#include <sys/stat.h>

#include <QFileInfo>
#include <utility>

namespace platform::inline base {

namespace {

std::int64_t nanoseconds(const timespec& time) {
  return time.tv_sec * std::int64_t{1'000'000'000} + time.tv_nsec;
}

}  // namespace

std::optional<FileStamp> stampOf(const QString& path) {
  struct stat status {};
  const bool isFile =
      ::stat(QFile::encodeName(path).constData(), &status) == 0 && S_ISREG(status.st_mode);
  if (!isFile) return std::nullopt;
  return FileStamp{.device = status.st_dev,
                   .inode = status.st_ino,
                   .size = status.st_size,
                   .modified = nanoseconds(status.st_mtim),
                   .changed = nanoseconds(status.st_ctim)};
}

std::unique_ptr<QFile> openWatched(const QString& path) {
  auto file = std::make_unique<QFile>(path);
  const bool open = file->open(QIODevice::ReadOnly | QIODevice::Unbuffered);
  return open ? std::move(file) : nullptr;
}

bool mayWrite(const QString& path) {
  return QFileInfo(path).isWritable();
}

bool isWorthAnotherTry(int /*tried*/) {
  return false;
}

QByteArray lineEnd() {
  return QByteArrayLiteral("\n");
}

}  // namespace platform::inline base
