#pragma once

#include <QString>

#include "games/quantita.h"

namespace somme::inline condiviso {
class Ambiente;
}

namespace somme::inline nucleo {

// What stands on a board or the abacus in the words of the current language, as a screen reader
// says it: "3 decine, 4 unità", without the kinds of which there is none; "vuoto" for nothing at
// all. The words are those of section "Quantita" of the language file, or the Italian ones.
[[nodiscard]] QString InParole(Ambiente& ambiente, const Quantita& quantita);

}  // namespace somme::inline nucleo
