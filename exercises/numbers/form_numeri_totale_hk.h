#pragma once

#include "exercises/numbers/forma_numeri_hk.h"

namespace somme {

// Two addends, and the sum is to be found, by touch.
class FormNumeriTotaleHK final : public FormaNumeriHK {
 public:
  explicit FormNumeriTotaleHK(Ambiente& ambiente);
};

}  // namespace somme
