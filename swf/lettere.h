#pragma once

#include <string_view>

#include "tools/swf/percorso.h"

namespace somme::filmati {

// The signs of the places, k, h, da and u, as a hand writes them with one pen: lines, no outlines,
// to be traced with a pen about a sixth of `corpo` wide. `corpo` is the height of a small letter
// in pixels; k, h and d are about half as tall again. The word stands round the point `centro`,
// its small letters halfway up. Throws std::out_of_range for a letter that no sign has.
[[nodiscard]] swf::Percorso scritta(std::string_view parola, double corpo, swf::Punto centro);

}  // namespace somme::filmati
