#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace somme::inline giochi {

// The places of a number, from the right.
enum class Posto : std::uint8_t { Unita, Decine, Centinaia, Migliaia };
inline constexpr std::size_t kPosti = 4;

// Ten of a place are worth one of the next.
inline constexpr int kDieci = 10;

// What one of a place is worth.
[[nodiscard]] constexpr int ValoreDi(Posto posto) {
  constexpr std::array<int, kPosti> kValori{1, 10, 100, 1000};
  return kValori[static_cast<std::size_t>(posto)];
}

// The place to the left; the thousands have none.
[[nodiscard]] constexpr Posto Superiore(Posto posto) {
  return static_cast<Posto>(static_cast<std::size_t>(posto) + 1);
}

// How many of each place a board or the abacus shows, also more than nine of one.
struct Quantita {
  int migliaia = 0;
  int centinaia = 0;
  int decine = 0;
  int unita = 0;

  [[nodiscard]] constexpr int& operator[](Posto posto) { return this->*Membro(posto); }
  [[nodiscard]] constexpr int operator[](Posto posto) const { return this->*Membro(posto); }

  // The number that they make; ten of a place count as one of the next.
  [[nodiscard]] constexpr int Valore() const {
    return migliaia * 1000 + centinaia * 100 + decine * 10 + unita;
  }

  friend bool operator==(const Quantita&, const Quantita&) = default;

 private:
  static constexpr int Quantita::*Membro(Posto posto) {
    constexpr std::array<int Quantita::*, kPosti> kMembri{
        &Quantita::unita, &Quantita::decine, &Quantita::centinaia, &Quantita::migliaia};
    return kMembri[static_cast<std::size_t>(posto)];
  }
};

// The digits of a number as they are shown one by one, by their place. The place `prima` takes all
// that is above it; a place that the number does not reach has no digit, but the units always have.
// numero: not negative.
using Cifre = std::array<std::optional<int>, kPosti>;
[[nodiscard]] Cifre CifreDi(int numero, Posto prima);

}  // namespace somme::inline giochi
