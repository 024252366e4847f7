#pragma once

#include "app/menu_di_famiglia.h"

namespace somme::inline programma {

// The levels of the number exercises: the sum to find (`Command1`) and the addend to find
// (`Command2`). Element 0 of `Command1` is the way back; element 0 of `Command2` stays hidden.
class FormMenuNumeri final : public MenuDiFamiglia {
 public:
  explicit FormMenuNumeri(Ambiente& ambiente);

  platform::Label Label2{*this};
  platform::Label Label3{*this};
  platform::Label Label4{*this};
  platform::Label Label5{*this};
  platform::Label Label6{*this};
  platform::ControlArray<platform::Button> Command1{*this};
  platform::ControlArray<platform::Button> Command2{*this};

 protected:
  void onLoad() override;
  void onActivate() override;
};

}  // namespace somme::inline programma
