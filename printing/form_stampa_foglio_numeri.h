#pragma once

#include "printing/foglio_cifre.h"

namespace somme {

// The sheet of the bars: digits, and a key for the help.
class FormStampaFoglioNumeri final : public FoglioCifre {
 public:
  explicit FormStampaFoglioNumeri(Ambiente& ambiente);

  platform::Image Image1{*this};

 protected:
  void Disponi(const Griglia& griglia) override;
};

}  // namespace somme
