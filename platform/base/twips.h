#pragma once

#include <compare>

namespace platform::inline base {

// A length in twips, the unit in which forms, sheets and movies are laid out: 1440 to the inch. Any
// other unit becomes twips, and twips any other unit, by way of this type alone; a length divided
// by that of a pixel, or of a dot of a printer, is a number of them.
class Twips {
 public:
  static constexpr double kMillimetresPerInch = 25.4;

  constexpr Twips() = default;
  explicit constexpr Twips(double twips) : twips_(twips) {}

  [[nodiscard]] static constexpr Twips inches(double length) { return Twips(length * kPerInch); }
  [[nodiscard]] static constexpr Twips millimetres(double length) {
    return Twips(length * (kPerInch / kMillimetresPerInch));
  }
  // The points of a font, 72 to the inch.
  [[nodiscard]] static constexpr Twips points(double length) {
    return Twips(length * (kPerInch / 72));
  }

  [[nodiscard]] constexpr double count() const { return twips_; }

  friend constexpr Twips operator*(Twips length, double times) {
    return Twips(length.twips_ * times);
  }
  friend constexpr double operator/(Twips length, Twips unit) {
    return length.twips_ / unit.twips_;
  }
  friend constexpr auto operator<=>(const Twips&, const Twips&) = default;

 private:
  static constexpr double kPerInch = 1440;

  double twips_ = 0;
};

}  // namespace platform::inline base
