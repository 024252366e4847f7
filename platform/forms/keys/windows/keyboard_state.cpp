#include "platform/forms/keys/keyboard_state.h"

#include <windows.h>

#include <algorithm>
#include <array>

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

}  // namespace platform::inline forms
