#pragma once

class QKeyEvent;

namespace platform {

// The codes by which forms know the keys that they ask for.
inline constexpr int kKeyBackspace = 8;
inline constexpr int kKeyEnter = 13;  // both Enter keys
inline constexpr int kKeyEscape = 27;
inline constexpr int kKeySpace = 32;

// The code of a key: that of its character in capitals where it is one of ASCII, else one of those
// above; 0 for every other key.
[[nodiscard]] int keyCodeOf(const QKeyEvent& event);

}  // namespace platform
