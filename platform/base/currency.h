#pragma once

#include <QtGlobal>
#include <compare>
#include <concepts>

namespace platform::inline base {

// A fixed-point number with four decimals in 64 bits: what a pupil's answer is kept in, so that
// comparing it with a sum is exact.
class Currency final {
 public:
  constexpr Currency() = default;

  // value: rounded to four decimals, a half to the even neighbour. Throws RunTimeError(Overflow)
  // beyond some 922 337 203 685 477 on either side, and for what is not a number.
  [[nodiscard]] static Currency fromDouble(double value);

  [[nodiscard]] constexpr double toDouble() const {
    return static_cast<double>(tenThousandths_) / kScale;
  }
  // The number without its decimals, cut towards zero.
  [[nodiscard]] constexpr qint64 wholePart() const { return tenThousandths_ / kScale; }
  [[nodiscard]] constexpr bool isWhole() const { return tenThousandths_ % kScale == 0; }

  friend constexpr auto operator<=>(const Currency&, const Currency&) = default;
  friend constexpr bool operator==(const Currency&, const Currency&) = default;

  // Exact for every whole number, also those that are out of this type's range.
  friend constexpr std::strong_ordering operator<=>(const Currency& left,
                                                    std::signed_integral auto right) {
    const std::strong_ordering whole = left.wholePart() <=> qint64{right};
    return whole != 0 ? whole : left.tenThousandths_ % kScale <=> 0;
  }
  friend constexpr bool operator==(const Currency& left, std::signed_integral auto right) {
    return (left <=> right) == 0;
  }

 private:
  static constexpr qint64 kScale = 10000;

  qint64 tenThousandths_ = 0;
};

}  // namespace platform::inline base
