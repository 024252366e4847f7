#pragma once

#include <QString>
#include <QStringView>
#include <concepts>
#include <utility>

#include "platform/base/run_time_error.h"

namespace platform::inline base {

// Numbers as text. Nothing here looks at the locale: the point is always ".", digits are 0 to 9.

// One blank, or the minus sign, then the digits: 7 gives " 7".
[[nodiscard]] QString leadingBlank(qint64 value);

// The digits alone, with a minus sign where there is one.
[[nodiscard]] QString plain(qint64 value);

// The value written by a picture. `0` is a place that always has a digit, `#` one that has a digit
// only where the number has one, the first "." the decimal point, anything else stands as it is.
// Digits fill the places of the whole part from the right; surplus ones stand before the leftmost
// place. The point stands whenever the picture has it; zeros at the end of the `#` places after it
// fall away. A minus sign stands in front of all; a value that the picture shows as zero has none.
//
// Decimals that the picture has no place for are rounded half away from zero, and the digits
// rounded are those of the shortest decimal that means this float: 1.005 in "0.00" is "1.01",
// as whoever typed 1.005 expects.
//
// Throws RunTimeError(Overflow) for a value without digits (infinite, not a number).
[[nodiscard]] QString formatPicture(double value, QStringView picture);

// The number that a text begins with: an optional sign, digits, "." as the point. Blanks are
// skipped wherever they stand; reading stops at the first other character. Nothing readable is 0;
// more digits than a float can hold give infinity, which equals no sum.
[[nodiscard]] double leadingNumber(QStringView text);

// Exactly 0 to 9; no other script's digits, no fractions.
[[nodiscard]] constexpr bool isNumericCharacter(QChar character) noexcept {
  return character >= u'0' && character <= u'9';
}

// The text without the blanks (U+0020, nothing else) at both ends.
[[nodiscard]] QString trimBlanks(QStringView text);

// The nearest whole number, a half to the even neighbour. Throws RunTimeError(Overflow) when 64
// bits do not hold it.
[[nodiscard]] qint64 roundHalfEven(double value);

// A whole number as the 16 or 32 bits of a variable. Throws RunTimeError(Overflow) outside.
template <std::integral T>
[[nodiscard]] constexpr qint16 toInt16(T value) {
  if (!std::in_range<qint16>(value)) throw RunTimeError(RunTimeError::Overflow);
  return static_cast<qint16>(value);
}
template <std::integral T>
[[nodiscard]] constexpr qint32 toInt32(T value) {
  if (!std::in_range<qint32>(value)) throw RunTimeError(RunTimeError::Overflow);
  return static_cast<qint32>(value);
}

// The same for a float, rounded half to even before the range is looked at.
[[nodiscard]] inline qint16 toInt16(double value) {
  return toInt16(roundHalfEven(value));
}
[[nodiscard]] inline qint32 toInt32(double value) {
  return toInt32(roundHalfEven(value));
}

}  // namespace platform::inline base
