#pragma once

#include "app/menu_di_famiglia.h"
#include "cases/livelli.h"
#include "platform/forms/control_array.h"

namespace somme::inline programma {

// The levels of the blocks: with tens and units, and with hundreds. No title is built here: these
// exercises compose their headings themselves. `Command1` is the way back; the button of a level
// bears the name that the level's row gives it.
class FormMenuPLU final : public MenuDiFamiglia {
 public:
  explicit FormMenuPLU(Ambiente& ambiente);

  platform::Label Label2{*this};
  platform::Label Label3{*this};
  platform::Button Command1{*this};

  // The button of the level whose row is the `riga`th of `kLivelli`, counted from 0.
  [[nodiscard]] platform::Button& Voce(int riga) { return livelli_.element(riga); }

 protected:
  void onLoad() override;

 private:
  void ApreLivello(const Livello& livello, const platform::Label& fascia);

  platform::ControlArray<platform::Button> livelli_{*this};
};

}  // namespace somme::inline programma
