#include "platform/devices/whole_file.h"

#include <io.h>
#include <windows.h>

#include <QDir>

#include "platform/base/system_files.h"

namespace platform::inline devices {

namespace {

std::wstring native(const QString& path) {
  return QDir::toNativeSeparators(path).toStdWString();
}

bool isHeldForAWhile(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED ||
         error == ERROR_LOCK_VIOLATION;
}

}  // namespace

bool bringToDisk(QFile& file) {
  return ::_commit(file.handle()) == 0;
}

// Without a flag a move neither replaces nor crosses to another disk.
Naming giveName(const QString& part, const QString& whole) {
  const std::wstring from = native(part);
  const std::wstring to = native(whole);
  for (int i = 1;; ++i) {
    if (::MoveFileExW(from.c_str(), to.c_str(), 0) != 0) return Naming::Done;
    const DWORD error = ::GetLastError();
    if (error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS) return Naming::Taken;
    if (!isHeldForAWhile(error) || !isWorthAnotherTry(i)) return Naming::Failed;
  }
}

}  // namespace platform::inline devices
