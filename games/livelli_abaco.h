#pragma once

#include <array>
#include <optional>

#include "cases/livelli.h"
#include "games/quantita.h"

namespace somme::inline giochi {

// Whether beads of a place wait beside their spike at a level of the abacus. None where the level
// does not exist and leaves thousands and hundreds as they are.
[[nodiscard]] std::optional<bool> HaPalline(int tipo, Posto posto);

// How many digits the answer may have; none where the level does not exist.
[[nodiscard]] std::optional<qint16> CifreDellaRisposta(int tipo);

// One thing of each arrow, by the place that it carries from: units, tens, hundreds.
using PerFreccia = std::array<bool, 3>;
// Which arrows a level shows. An arrow that is hidden forbids its carry: ten beads stay on the
// spike. None where the level does not exist and leaves the arrows as they are.
[[nodiscard]] std::optional<PerFreccia> FrecceDelLivello(int tipo);

}  // namespace somme::inline giochi
