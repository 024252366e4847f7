#include "printing/griglia_foglio.h"

#include "platform/base/numbers.h"

namespace somme::inline stampa {

Griglia GrigliaDi(double larghezza, double altezza) {
  const auto unita = [](double twips, int quante) {
    return static_cast<int>(platform::roundHalfEven(twips)) / quante;
  };
  return {unita(larghezza, kColonneGriglia), unita(altezza, kRigheGriglia)};
}

}  // namespace somme::inline stampa
