#pragma once

#include "tools/swf/filmato.h"

namespace somme::filmati {

// The abacus: four spikes with ten beads each, "k0" to "k9", "h0", "da0", "u0" ..., counted from
// the base up, and beside each spike the ten beads that wait, "ka0", "ha0", "daa0", "ua0" ... A
// click on a bead raises FSCommand with the clip's name as command and, as arguments, the word
// that says what kind of bead it is and whether it waits. Nothing moves by itself, and every bead
// is visible when the movie is loaded: which ones stand there, the form says.
[[nodiscard]] swf::Filmato abaco();

}  // namespace somme::filmati
