#pragma once

#include "platform/forms/controls/line.h"
#include "printing/foglio_tastiera.h"

namespace somme::inline stampa {

// A sheet for adjusting the touch surface: frames, and the lines of the grid with their numbers;
// those of `Line1`, at the top, are `Label1`.
class FoglioCalibrazione final : public FoglioTastiera {
 public:
  FoglioCalibrazione(Ambiente& ambiente, std::string_view nome);

  platform::ControlArray<platform::Line> Line1{*this};    // from top to bottom, one every X
  platform::ControlArray<platform::Line> Line2{*this};    // from side to side, one every Y
  platform::ControlArray<platform::Label> Label2{*this};  // the numbers of `Line2`, at the left

 protected:
  void onLoad() override;
  void Disponi(const Griglia& griglia) override;
};

}  // namespace somme::inline stampa
