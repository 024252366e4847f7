#pragma once

#include "app/menu_di_famiglia.h"

namespace somme::inline programma {

// The levels of the abacus. Element 0 of `Command1` is the way back.
class FormMenuAbaco final : public MenuDiFamiglia {
 public:
  explicit FormMenuAbaco(Ambiente& ambiente);

  platform::Label Label2{*this};
  platform::Label Label3{*this};
  platform::Label Label4{*this};
  platform::ControlArray<platform::Button> Command1{*this};

 protected:
  void onLoad() override;
  void onActivate() override;
};

}  // namespace somme::inline programma
