#include "platform/devices/whole_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace platform::inline devices {

bool bringToDisk(QFile& file) {
  return ::fsync(file.handle()) == 0;
}

Naming giveName(const QString& part, const QString& whole) {
  const QByteArray from = QFile::encodeName(part);
  const QByteArray to = QFile::encodeName(whole);
  if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) {
    return Naming::Done;
  }
  // A file system that knows no such renaming may give a file a second name.
  if (errno != EEXIST && ::link(from.constData(), to.constData()) == 0) {
    ::unlink(from.constData());
    return Naming::Done;
  }
  return errno == EEXIST ? Naming::Taken : Naming::Failed;
}

}  // namespace platform::inline devices
