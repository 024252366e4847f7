#include "platform/devices/linux/file_instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <utility>

namespace platform::inline devices {

namespace {

// The session's own folder, the same by its usual place (a start from outside the session does not
// know it otherwise), and the folder for temporary files.
QStringList usualFolders() {
  QStringList folders;
  const QString session = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (!session.isEmpty()) {
    folders.append(session);
  }
  folders.append(QStringLiteral("/run/user/%1").arg(::getuid()));
  folders.append(QDir::tempPath());
  return folders;
}

QString resolved(const QString& path) {
  const QString canonical = QFileInfo(path).canonicalFilePath();
  return canonical.isEmpty() ? QFileInfo(path).absoluteFilePath() : canonical;
}

}  // namespace

FileInstanceLock::FileInstanceLock(const QString& executable)
    : FileInstanceLock(executable, usualFolders()) {}

FileInstanceLock::FileInstanceLock(const QString& executable, QStringList folders)
    : folders_(std::move(folders)) {
  const QByteArray hash =
      QCryptographicHash::hash(QFile::encodeName(resolved(executable)), QCryptographicHash::Sha256);
  fileName_ = QStringLiteral("instance-%1-%2.lock")
                  .arg(QString::number(::getuid()), QString::fromLatin1(hash.toHex().left(32)));
}

FileInstanceLock::~FileInstanceLock() {
  letGo();
}

bool FileInstanceLock::take() {
  if (!descriptors_.empty()) {
    return true;
  }
  for (const QString& folder : std::as_const(folders_)) {
    if (!takeIn(folder)) {
      letGo();
      return false;
    }
  }
  return true;
}

bool FileInstanceLock::takeIn(const QString& folder) {
  const QByteArray path = QFile::encodeName(folder + QLatin1Char('/') + fileName_);
  // O_NONBLOCK: a pipe that lies there under this name must not hold the start up.
  const int descriptor =
      ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
  if (descriptor < 0) {
    return true;
  }
  struct stat status {};
  // What another user put there, in a folder open to all, says nothing about this user.
  const bool ours =
      ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::getuid();
  // The same file by another way: this process would stand in its own way.
  const bool known = std::ranges::any_of(descriptors_, [&](int held) {
    struct stat other {};
    return ::fstat(held, &other) == 0 && other.st_dev == status.st_dev &&
           other.st_ino == status.st_ino;
  });
  if (ours && !known && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
    descriptors_.push_back(descriptor);
    return true;
  }
  const bool held = ours && !known && errno == EWOULDBLOCK;
  ::close(descriptor);
  return !held;
}

void FileInstanceLock::letGo() {
  for (const int descriptor : descriptors_) {
    ::close(descriptor);
  }
  descriptors_.clear();
}

}  // namespace platform::inline devices
