#include "platform/forms/keys/keyboard_state.h"

#include <windows.h>

#include <QByteArray>
#include <algorithm>
#include <array>
#include <bitset>

namespace platform::inline forms {

namespace {

constexpr int kLastKey = 0xFE;
constexpr SHORT kDown = SHORT(0x8000);
// The toolkit's scan codes bear it for the keys that came later to the keyboard, such as the
// arrows: their twins on the number pad do not.
constexpr std::uint32_t kExtended = 0x100;

// What does nothing by itself: buttons of the mouse, modifiers, locks.
constexpr auto kSilent = std::to_array<int>(
    {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON, VK_XBUTTON1, VK_XBUTTON2, VK_SHIFT, VK_CONTROL,
     VK_MENU,    VK_LSHIFT,  VK_RSHIFT,  VK_LCONTROL, VK_RCONTROL, VK_LMENU, VK_RMENU,
     VK_LWIN,    VK_RWIN,    VK_CAPITAL, VK_NUMLOCK,  VK_SCROLL,   VK_CANCEL});

// A key may go up while the window that it went down in is going: nobody is told. The toolkit then
// takes the next press for a repeat, though the system, which marks those itself, does not.
class MissedReleases final : public QAbstractNativeEventFilter {
 public:
  bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* /*result*/) override {
    if (kind != "windows_generic_MSG") return false;
    const MSG& msg = *static_cast<const MSG*>(message);
    const bool press = msg.message == WM_KEYDOWN || msg.message == WM_SYSKEYDOWN;
    const bool release = msg.message == WM_KEYUP || msg.message == WM_SYSKEYUP;
    if ((!press && !release) || msg.wParam >= down_.size()) return false;
    if (press && down_[msg.wParam] && (msg.lParam & kWasDown) == 0) {
      // Comes by here, too, before the press goes on.
      ::SendMessageW(msg.hwnd, msg.message + (WM_KEYUP - WM_KEYDOWN), msg.wParam,
                     msg.lParam | kWasDown | kGoesUp);
    }
    down_[msg.wParam] = press;
    return false;
  }

 private:
  static constexpr LPARAM kWasDown = LPARAM(1) << 30;
  static constexpr LPARAM kGoesUp = LPARAM(1) << 31;

  std::bitset<256> down_;  // by the system's number of a key
};

}  // namespace

// The toolkit flags what repeats.
RepeatMarks askForRepeatMarks() {
  return RepeatMarks::Flagged;
}

// The system knows keys that are down by their meaning, which a key and its twin share: they count
// as one. Were both told as down, the twin would still be so at the key's next press.
std::uint32_t countedScanCode(std::uint32_t scanCode) {
  return scanCode & ~kExtended;
}

std::optional<std::vector<KeyId>> keysDownNow() {
  std::vector<KeyId> keys;
  for (int key = 1; key <= kLastKey; ++key) {
    const bool down = (::GetAsyncKeyState(key) & kDown) != 0;
    if (!down || std::ranges::find(kSilent, key) != kSilent.end()) continue;
    const UINT code = ::MapVirtualKeyW(UINT(key), MAPVK_VK_TO_VSC);
    if (code == 0) continue;
    keys.push_back(KeyId::of(code, 0));
  }
  return keys;
}

std::unique_ptr<QAbstractNativeEventFilter> missedReleases() {
  return std::make_unique<MissedReleases>();
}

}  // namespace platform::inline forms
