#pragma once

#include "printing/foglio_calibrazione.h"

namespace somme {

// Sixteen frames on the lines of the grid.
class FormStampaFoglio4 final : public FoglioCalibrazione {
 public:
  explicit FormStampaFoglio4(Ambiente& ambiente);
};

}  // namespace somme
