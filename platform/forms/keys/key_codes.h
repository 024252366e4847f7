#pragma once

#include <QChar>

class QKeyEvent;

namespace platform::inline forms {

// The codes by which forms know the keys that they ask for.
inline constexpr int kKeyBackspace = 8;
inline constexpr int kKeyEnter = 13;  // both Enter keys
inline constexpr int kKeyEscape = 27;
inline constexpr int kKeySpace = 32;

// The code of a key: that of its character in capitals where it is one of ASCII, else one of those
// above; 0 for every other key.
[[nodiscard]] int keyCodeOf(const QKeyEvent& event);

// The character that a key stands for, also where Alt keeps it from being written; null for a key
// that writes none, whose code lies beyond all characters.
[[nodiscard]] QChar characterOf(const QKeyEvent& event);

// Of the toolkit's codes: one of the two Enter keys; Shift, Alt and their like.
[[nodiscard]] bool isEnter(int key);
[[nodiscard]] bool isModifier(int key);

// Whether a held key may go on writing and moving in a text box, as everywhere.
[[nodiscard]] bool mayRepeat(const QKeyEvent& event);

}  // namespace platform::inline forms
