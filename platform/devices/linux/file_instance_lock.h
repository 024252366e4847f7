#pragma once

#include <QStringList>
#include <vector>

#include "platform/base/services.h"

namespace platform::inline devices {

// One instance for each user and executable, held by a lock of the kernel on an empty file. The
// kernel lets go of it when the process ends, however it ends, so that one that died never blocks
// a start; nothing in the file counts, and it stays where it is, since removing it would let two
// starts at the same moment lock two different files.
//
// The file is locked in every folder that will have it, so that starts from different environments
// meet in at least one. Where no file can be had at all the start is allowed, unguarded.
class FileInstanceLock final : public InstanceLock {
 public:
  // executable: the path of the running program; links in it are resolved.
  explicit FileInstanceLock(const QString& executable);
  // As above, with the folders that may hold the file; each start must try them in the same order.
  FileInstanceLock(const QString& executable, QStringList folders);
  ~FileInstanceLock() override;
  FileInstanceLock(const FileInstanceLock&) = delete;
  FileInstanceLock& operator=(const FileInstanceLock&) = delete;

  // Taken for the life of the process and not passed on to programs that it starts. Taking it
  // again answers as before.
  [[nodiscard]] bool take() override;

 private:
  // false when another process holds the file in that folder.
  [[nodiscard]] bool takeIn(const QString& folder);
  void letGo();

  QString fileName_;
  QStringList folders_;
  std::vector<int> descriptors_;  // one for each folder that had the file
};

}  // namespace platform::inline devices
