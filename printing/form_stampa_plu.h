#pragma once

#include "printing/foglio_tastiera.h"

namespace somme {

// The sheet of the flats, longs and units.
class FormStampaPLU final : public FoglioTastiera {
 public:
  explicit FormStampaPLU(Ambiente& ambiente);

  platform::ControlArray<platform::Label> Label3{*this};
  platform::Image Image1{*this};
  platform::Image Image2{*this};
  platform::Image Image3{*this};
  platform::Image Image4{*this};
  platform::Image Image5{*this};

 protected:
  void Disponi(const Griglia& griglia) override;
};

}  // namespace somme
