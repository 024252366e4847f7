#pragma once

#include "exercises/numbers/forma_numeri_tastiera.h"

namespace somme {

// One addend and the sum; the other addend is to be found.
class FormNumeriAddendo final : public FormaNumeriTastiera {
 public:
  explicit FormNumeriAddendo(Ambiente& ambiente);
};

}  // namespace somme
