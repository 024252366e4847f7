#include "exercises/abacus/casella_dietro.h"

#include "platform/base/numbers.h"

namespace somme::inline abaco {

void PosaDietro(TestoInputNumerico& casella, const platform::Label& operazione) {
  constexpr int kSovrapposti = 20;  // twips by which the box reaches under the operation
  casella.setTop(operazione.top());
  casella.setLeft(operazione.left() + operazione.width() - kSovrapposti);
  const auto meta = platform::roundHalfEven(operazione.width()) / 2;
  casella.setWidth(static_cast<double>(meta));
  casella.setHeight(operazione.height());
  casella.DimensioneTesto.set(platform::toInt16(operazione.fontSize()));
}

}  // namespace somme::inline abaco
