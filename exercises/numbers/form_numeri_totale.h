#pragma once

#include "exercises/numbers/forma_numeri_tastiera.h"

namespace somme {

// Two addends, and the sum is to be found.
class FormNumeriTotale final : public FormaNumeriTastiera {
 public:
  explicit FormNumeriTotale(Ambiente& ambiente);
};

}  // namespace somme
