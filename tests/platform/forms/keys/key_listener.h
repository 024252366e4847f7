#pragma once

#include <algorithm>

#include "platform/forms/keys/key_state.h"

// Keys as the desktop sends them, and what comes out of a key state.
namespace key_listener {

using platform::KeyId;
using platform::KeyInput;
using platform::KeyState;
using std::chrono::milliseconds;

inline constexpr KeyId kSpace = KeyId::of(65, 0x20);
inline constexpr KeyId kEnter = KeyId::of(36, 0x01000004);

// An event that is read the moment it happens.
inline KeyInput at(KeyId id, milliseconds time, bool flagged = false) {
  return {.id = id, .flaggedRepeat = flagged, .stamp = time, .arrival = time};
}

// An event that a busy program reads later than it happened.
inline KeyInput late(KeyId id, milliseconds stamp, milliseconds arrival) {
  return {.id = id, .stamp = stamp, .arrival = arrival};
}

// Whether a key, or any, is down that was pressed here; also one whose release is kept back. To
// learn it is to let the keys go, so that a copy is asked.
inline bool isDown(KeyState state, KeyId id) {
  const auto isIt = [id](const platform::HeldKey& key) { return key.id == id; };
  return std::ranges::any_of(state.letGoAll(), isIt);
}
inline bool anyDown(KeyState state) {
  return state.anyHeldOver() || !state.letGoAll().empty();
}

// Counts what comes out of a key state, as its caller delivers it.
struct Listener {
  explicit Listener(platform::RepeatMarks marks) : state(marks) {}

  void run(milliseconds time) {
    for (auto next = state.nextDue(); next && *next <= time; next = state.nextDue()) {
      releases += static_cast<int>(state.due(*next).size());
    }
  }
  void press(const KeyInput& input) {
    const auto result = state.press(input, 1);
    presses += result.verdict == KeyState::Press::Accepted ? 1 : 0;
    releases += result.released ? 1 : 0;
    lost += result.lost ? 1 : 0;
  }
  void release(const KeyInput& input) {
    releases += state.release(input).verdict == KeyState::Release::Accepted ? 1 : 0;
  }

  KeyState state;
  int presses = 0;
  int releases = 0;
  int lost = 0;
};

}  // namespace key_listener
