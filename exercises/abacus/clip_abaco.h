#pragma once

#include <QString>

#include "games/quantita.h"

namespace somme::inline abaco {

// The clips of the movie: bead `numero` of a place, 0 to 9, on its spike or waiting beside it.
[[nodiscard]] QString ClipSulFerro(Posto posto, int numero);
[[nodiscard]] QString ClipInAttesa(Posto posto, int numero);

}  // namespace somme::inline abaco
