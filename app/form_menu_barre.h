#pragma once

#include "app/forma_menu.h"

namespace somme::inline programma {

// The two ranges of the bars exercises. `Command1` is the way back.
class FormMenuBarre final : public FormaMenu {
 public:
  explicit FormMenuBarre(Ambiente& ambiente);

  platform::Button Command1{*this};
  platform::Button Command2{*this};
  platform::Button Command4{*this};

 protected:
  void onLoad() override;
};

}  // namespace somme::inline programma
