#pragma once

#include "platform/base/chance.h"

namespace somme::inline casi {

// A whole number from 0 to n - 1, from the next fraction of the source; 0 for n 1 and n 0. The
// fraction is a float of 32 bits, the product one of 64, so that n itself is never reached.
// n: not negative.
[[nodiscard]] inline int Casuale(platform::Chance& chance, double n) {
  return static_cast<int>(static_cast<double>(chance.fraction()) * n);
}

}  // namespace somme::inline casi
