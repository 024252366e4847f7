#pragma once

#include <QString>

namespace somme {

class Ambiente;

// How many of each kind a board or the abacus shows, also more than nine of one.
struct Quantita {
  int migliaia = 0;
  int centinaia = 0;
  int decine = 0;
  int unita = 0;

  friend bool operator==(const Quantita&, const Quantita&) = default;
};

// What stands there in the words of the current language, for who cannot see it: "3 decine,
// 4 unità", without the kinds of which there is none; "vuoto" for nothing at all. The words are
// those of section "Quantita" of the language file, or the Italian ones.
[[nodiscard]] QString InParole(Ambiente& ambiente, const Quantita& quantita);

}  // namespace somme
