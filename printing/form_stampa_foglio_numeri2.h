#pragma once

#include "printing/foglio_cifre.h"

namespace somme {

// The sheet of the exercises with numbers alone: digits, and no help.
class FormStampaFoglioNumeri2 final : public FoglioCifre {
 public:
  explicit FormStampaFoglioNumeri2(Ambiente& ambiente);
};

}  // namespace somme
