#pragma once

#include "exercises/numbers/forma_numeri_hk.h"

namespace somme {

// One addend and the sum; the other addend is to be found, by touch.
class FormNumeriAddendoHK final : public FormaNumeriHK {
 public:
  explicit FormNumeriAddendoHK(Ambiente& ambiente);
};

}  // namespace somme
