#pragma once

#include "printing/foglio_tastiera.h"

namespace somme {

// The sheets with the ten digits on the first ten of their sixteen keys, and the bin, the confirm
// and the forward sign on the last row. What the key of the help does is the two sheets' own
// business.
class FoglioCifre : public FoglioTastiera {
 public:
  platform::ControlArray<platform::Label> Label1{*this};
  platform::Image Image2{*this};
  platform::Image Image3{*this};
  platform::Image Image4{*this};

 protected:
  FoglioCifre(Ambiente& ambiente, const platform::FormDesign& disegno);

  void onLoad() override;
  void Disponi(const Griglia& griglia) override;
};

}  // namespace somme
