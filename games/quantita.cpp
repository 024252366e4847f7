#include "games/quantita.h"

namespace somme::inline giochi {

Cifre CifreDi(int numero, Posto prima) {
  Cifre cifre;
  int resto = numero;
  for (std::size_t i = 0; i <= static_cast<std::size_t>(prima); ++i) {
    const bool ultima = i == static_cast<std::size_t>(prima);
    if (resto > 0 || i == 0) cifre[i] = ultima ? resto : resto % 10;
    resto /= 10;
  }
  return cifre;
}

}  // namespace somme::inline giochi
