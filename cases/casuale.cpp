#include "cases/casuale.h"

namespace somme {

int Casuale(platform::Chance& sorte, double n) {
  return static_cast<int>(static_cast<double>(sorte.fraction()) * n);
}

}  // namespace somme
