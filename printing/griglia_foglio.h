#pragma once

#include "app/shared/foglio_tasti.h"
#include "platform/forms/geometry.h"

namespace somme::inline stampa {

// The units of the grid on a sheet of some size, in its twips: whole numbers, so that the grid may
// end up to 23 twips short of the sheet.
struct Griglia {
  int X = 0;
  int Y = 0;
};

// larghezza, altezza: the inner area of the form, twips.
[[nodiscard]] Griglia GrigliaDi(double larghezza, double altezza);

// Where cells of the grid stand on a sheet.
[[nodiscard]] constexpr platform::TwipsRect PostoDi(const Zona& zona, const Griglia& griglia) {
  return {double((zona.colonne.da - 1) * griglia.X), double((zona.righe.da - 1) * griglia.Y),
          double(zona.colonne.lunga() * griglia.X), double(zona.righe.lunga() * griglia.Y)};
}

}  // namespace somme::inline stampa
