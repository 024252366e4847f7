#pragma once

#include "input/testo_input_numerico.h"
#include "platform/forms/controls/label.h"

namespace somme::inline abaco {

// Puts the box for the sum behind the operation, in the size of its letters, as the operation
// stands now.
void PosaDietro(TestoInputNumerico& casella, const platform::Label& operazione);

}  // namespace somme::inline abaco
