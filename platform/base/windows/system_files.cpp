#include "platform/base/system_files.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <QDir>
#include <utility>

namespace platform::inline base {

namespace {

// The system counts tenths of a microsecond since 1601.
constexpr std::int64_t kNanosecondsPerTick = 100;
constexpr std::int64_t kTicksUntil1970 = 116'444'736'000'000'000;

std::int64_t nanoseconds(const LARGE_INTEGER& ticks) {
  return (ticks.QuadPart - kTicksUntil1970) * kNanosecondsPerTick;
}

std::uint64_t joined(DWORD high, DWORD low) {
  return std::uint64_t{high} << 32U | low;
}

// INVALID_HANDLE_VALUE where it cannot be opened.
HANDLE openShared(const QString& path, DWORD access) {
  const std::wstring name = QDir::toNativeSeparators(path).toStdWString();
  return ::CreateFileW(name.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                       nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

std::optional<FileStamp> stampOfOpen(HANDLE file) {
  BY_HANDLE_FILE_INFORMATION identity;
  FILE_BASIC_INFO times;
  if (::GetFileInformationByHandle(file, &identity) == 0 ||
      (identity.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ||
      ::GetFileInformationByHandleEx(file, FileBasicInfo, &times, sizeof times) == 0) {
    return std::nullopt;
  }
  return FileStamp{.device = identity.dwVolumeSerialNumber,
                   .inode = joined(identity.nFileIndexHigh, identity.nFileIndexLow),
                   .size = std::int64_t(joined(identity.nFileSizeHigh, identity.nFileSizeLow)),
                   .modified = nanoseconds(times.LastWriteTime),
                   // A file system without it keeps 0 there, for ever the same.
                   .changed = nanoseconds(times.ChangeTime.QuadPart != 0 ? times.ChangeTime
                                                                         : times.LastWriteTime)};
}

}  // namespace

std::optional<FileStamp> stampOf(const QString& path) {
  HANDLE file = openShared(path, FILE_READ_ATTRIBUTES);
  if (file == INVALID_HANDLE_VALUE) return std::nullopt;
  const std::optional<FileStamp> stamp = stampOfOpen(file);
  ::CloseHandle(file);
  return stamp;
}

std::unique_ptr<QFile> openWatched(const QString& path) {
  HANDLE handle = openShared(path, GENERIC_READ);
  if (handle == INVALID_HANDLE_VALUE) return nullptr;
  const int descriptor = ::_open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_RDONLY);
  if (descriptor < 0) {
    ::CloseHandle(handle);
    return nullptr;
  }
  auto file = std::make_unique<QFile>();
  const bool open = file->open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered,
                               QFileDevice::AutoCloseHandle);
  if (open) return file;
  ::_close(descriptor);
  return nullptr;
}

// Opened for it, which alone asks everything; of a folder the same right is that to add a file.
bool mayWrite(const QString& path) {
  HANDLE handle = openShared(path, FILE_WRITE_DATA);
  if (handle == INVALID_HANDLE_VALUE) return false;
  ::CloseHandle(handle);
  return true;
}

bool isWorthAnotherTry(int tried) {
  constexpr int kMost = 10;
  constexpr DWORD kBetween = 100;  // milliseconds
  if (tried >= kMost) return false;
  ::Sleep(kBetween);
  return true;
}

QByteArray lineEnd() {
  return QByteArrayLiteral("\r\n");
}

}  // namespace platform::inline base
