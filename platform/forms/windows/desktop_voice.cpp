#include "platform/forms/desktop_voice.h"

#include <windows.h>
// After the system's own.
#include <oleauto.h>

#include <QLibrary>
#include <memory>

namespace platform::inline forms {

namespace {

// A notification, of no kind that the system has a name for; each is spoken, none in the place of
// another.
constexpr int kOtherKind = 4;
constexpr int kProcessAll = 2;

struct FreeText {
  void operator()(OLECHAR* text) const { ::SysFreeString(text); }
};
using Text = std::unique_ptr<OLECHAR, FreeText>;

Text textOf(const QString& words) {
  const std::wstring wide = words.toStdWString();
  return Text(::SysAllocStringLen(wide.data(), UINT(wide.size())));
}

struct Release {
  void operator()(IUnknown* object) const { object->Release(); }
};

// What the system has for it since Windows 10 of 2017, looked up when something is to be told.
struct Automation {
  BOOL(WINAPI* someoneListens)() = nullptr;
  HRESULT(WINAPI* providerOf)(HWND window, IUnknown** provider) = nullptr;
  HRESULT(WINAPI* notify)
  (IUnknown* provider, int kind, int processing, BSTR words, BSTR id) = nullptr;

  Automation() {
    QLibrary library(QStringLiteral("UIAutomationCore"));
    const auto find = [&library](const char* name, auto& function) {
      function =
          reinterpret_cast<std::remove_reference_t<decltype(function)>>(library.resolve(name));
    };
    find("UiaClientsAreListening", someoneListens);
    find("UiaHostProviderFromHwnd", providerOf);
    find("UiaRaiseNotificationEvent", notify);
  }
  [[nodiscard]] bool complete() const {
    return someoneListens != nullptr && providerOf != nullptr && notify != nullptr;
  }
};

}  // namespace

// On behalf of the window: what has the focus in it stands in the toolkit's hands.
void tellDesktop(QWidget& speaker, const QString& sentence) {
  static const Automation automation;
  if (!automation.complete() || automation.someoneListens() == 0) return;
  auto* window = reinterpret_cast<HWND>(speaker.window()->winId());
  IUnknown* found = nullptr;
  if (automation.providerOf(window, &found) != S_OK || found == nullptr) return;
  const std::unique_ptr<IUnknown, Release> provider(found);
  const Text words = textOf(sentence);
  const Text id = textOf(QStringLiteral("somme"));
  automation.notify(provider.get(), kOtherKind, kProcessAll, words.get(), id.get());
}

}  // namespace platform::inline forms
