#pragma once

#include "app/forma_menu.h"

namespace somme::inline programma {

// The kinds of case on the addition table that are offered: the indices of `Command2` are the
// values of `TipoEsercizio`, with gaps. `Command1` is the way back.
class FormMenuTabella final : public FormaMenu {
 public:
  explicit FormMenuTabella(Ambiente& ambiente);

  platform::Button Command1{*this};
  platform::ControlArray<platform::Button> Command2{*this};

 protected:
  void onLoad() override;
};

}  // namespace somme::inline programma
