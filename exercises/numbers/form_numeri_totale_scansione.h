#pragma once

#include "exercises/numbers/forma_numeri_scansione.h"

namespace somme {

// Two addends, and the sum is to be found, by scanning.
class FormNumeriTotaleScansione final : public FormaNumeriScansione {
 public:
  explicit FormNumeriTotaleScansione(Ambiente& ambiente);
};

}  // namespace somme
