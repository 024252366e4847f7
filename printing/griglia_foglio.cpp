#include "printing/griglia_foglio.h"

#include "platform/base/numbers.h"

namespace somme {

Griglia GrigliaDi(double larghezza, double altezza) {
  const auto unita = [](double twips, int quante) {
    return static_cast<int>(platform::roundHalfEven(twips)) / quante;
  };
  return {unita(larghezza, Griglia::kColonne), unita(altezza, Griglia::kRighe)};
}

}  // namespace somme
