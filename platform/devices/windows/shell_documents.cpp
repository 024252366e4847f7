#include "platform/devices/windows/shell_documents.h"

#include <windows.h>
// After the system's own.
#include <objbase.h>
#include <shellapi.h>

#include <QDir>
#include <QFileInfo>

#include "platform/devices/quiet_thread.h"

namespace platform::inline devices {

namespace {

void openNow(const std::wstring& document) {
  const bool hasCom =
      SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE));
  SHELLEXECUTEINFOW wish{};
  wish.cbSize = sizeof wish;
  // The thread ends right after, and nobody is asked what the document might be opened with.
  wish.fMask = SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI;
  wish.lpVerb = L"open";
  wish.lpFile = document.c_str();
  wish.nShow = SW_SHOWNORMAL;
  ::ShellExecuteExW(&wish);
  if (hasCom) ::CoUninitialize();
}

}  // namespace

void ShellDocuments::open(const QString& path) {
  const QFileInfo document(path);
  if (path.isEmpty() || !document.exists()) {
    return;
  }
  // Absolute, so that no name can be read as an address.
  const std::wstring name = QDir::toNativeSeparators(document.absoluteFilePath()).toStdWString();
  static_cast<void>(startQuietThread([name] { openNow(name); }));
}

}  // namespace platform::inline devices
