#include "platform/devices/windows/mutex_instance_lock.h"

#include <windows.h>

#include <QByteArray>
#include <QCryptographicHash>
#include <QFileInfo>
#include <vector>

namespace platform::inline devices {

namespace {

// What tells the user from every other one, as bytes; empty where the system does not say.
QByteArray user() {
  HANDLE token = nullptr;
  if (::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token) == 0) return {};
  DWORD size = 0;
  ::GetTokenInformation(token, TokenUser, nullptr, 0, &size);
  std::vector<char> room(size);
  QByteArray bytes;
  if (::GetTokenInformation(token, TokenUser, room.data(), size, &size) != 0) {
    PSID sid = reinterpret_cast<const TOKEN_USER*>(room.data())->User.Sid;
    bytes = QByteArray(static_cast<const char*>(sid), qsizetype(::GetLengthSid(sid)));
  }
  ::CloseHandle(token);
  return bytes;
}

// A path means the same in capitals here.
QByteArray resolved(const QString& path) {
  const QString canonical = QFileInfo(path).canonicalFilePath();
  const QString known = canonical.isEmpty() ? QFileInfo(path).absoluteFilePath() : canonical;
  return known.toCaseFolded().toUtf8();
}

}  // namespace

void MutexInstanceLock::Close::operator()(void* handle) const {
  ::CloseHandle(handle);
}

MutexInstanceLock::MutexInstanceLock(const QString& executable) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(user());
  hash.addData(resolved(executable));
  name_ = QStringLiteral("Global\\instance-") + QString::fromLatin1(hash.result().toHex().left(48));
}

bool MutexInstanceLock::take() {
  if (mutex_) return true;
  HANDLE mutex = ::CreateMutexW(nullptr, FALSE, name_.toStdWString().c_str());
  const bool isHeld = mutex != nullptr && ::GetLastError() == ERROR_ALREADY_EXISTS;
  if (isHeld) {
    ::CloseHandle(mutex);
    return false;
  }
  mutex_.reset(mutex);
  return true;
}

}  // namespace platform::inline devices
