#pragma once

#include "printing/foglio_calibrazione.h"

namespace somme {

// Six frames on the lines of the grid.
class FormStampaFoglio1 final : public FoglioCalibrazione {
 public:
  explicit FormStampaFoglio1(Ambiente& ambiente);
};

}  // namespace somme
