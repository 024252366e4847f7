#pragma once

#include "platform/base/chance.h"

namespace somme {

// A whole number from 0 to n - 1, drawn from the shared source; 0 for n of 1 or less.
[[nodiscard]] int Casuale(platform::Chance& sorte, double n);

}  // namespace somme
