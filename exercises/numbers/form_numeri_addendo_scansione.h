#pragma once

#include "exercises/numbers/forma_numeri_scansione.h"

namespace somme {

// One addend and the sum; the other addend is to be found, by scanning.
class FormNumeriAddendoScansione final : public FormaNumeriScansione {
 public:
  explicit FormNumeriAddendoScansione(Ambiente& ambiente);
};

}  // namespace somme
