#pragma once

#include "app/shared/stato_condiviso.h"

namespace somme::inline condiviso {

// Puts the settings at their values of the start.
void ImpostaDefault(StatoCondiviso& stato);

}  // namespace somme::inline condiviso
