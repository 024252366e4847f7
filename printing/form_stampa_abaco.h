#pragma once

#include "printing/foglio_tastiera.h"

namespace somme {

// The sheet of the abacus.
class FormStampaAbaco final : public FoglioTastiera {
 public:
  explicit FormStampaAbaco(Ambiente& ambiente);

  platform::ControlArray<platform::Label> Label3{*this};
  platform::Image Image1{*this};
  platform::Image Image2{*this};
  platform::Image Image3{*this};
  platform::Image Image4{*this};
  platform::Image Image5{*this};
  platform::Image Image6{*this};

 protected:
  void Disponi(const Griglia& griglia) override;
};

}  // namespace somme
