#pragma once

#include <chrono>
#include <cstdint>

namespace platform::inline forms {

// What a key is known by: its scan code, or the key code of the toolkit where the desktop gives no
// scan code (on-screen keyboards, some remote desktops).
class KeyId {
 public:
  // scanCode: 0 where there is none; keyCode: the toolkit's.
  static constexpr KeyId of(std::uint32_t scanCode, std::uint32_t keyCode) {
    return scanCode != 0 ? KeyId(scanCode, true) : KeyId(keyCode, false);
  }

  constexpr bool operator==(const KeyId&) const = default;

 private:
  constexpr KeyId(std::uint32_t code, bool isScanCode) : code_(code), isScanCode_(isScanCode) {}

  std::uint32_t code_;
  bool isScanCode_;
};

// How the repeats of a held key show.
enum class RepeatMarks {
  // A plain X server: pairs of a release and a press at the same server time; the toolkit flags a
  // pair only when both have arrived by the time it looks, else both look genuine.
  Unreliable,
  // An X server with detectable repeat: presses alone, not flagged.
  PressesOnly,
  // Every other desktop: what is not flagged as a repeat is none. (Flagged pairs on Wayland and
  // Windows, flagged presses alone on macOS.)
  Flagged,
};

// One key event as the desktop reports it.
struct KeyInput {
  KeyId id;
  bool flaggedRepeat = false;
  // When it happened, by the desktop's own clock; 0 where the desktop tells nothing.
  std::chrono::milliseconds stamp{0};
  // When it reached the program, by the clock that due() is asked with.
  std::chrono::milliseconds arrival{0};
};

}  // namespace platform::inline forms
