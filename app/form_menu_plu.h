#pragma once

#include "app/forma_menu.h"

namespace somme {

// The levels of the blocks: with tens and units, and with hundreds. No title is built here: these
// exercises compose their headings themselves. `Command1` is the way back.
class FormMenuPLU final : public FormaMenu {
 public:
  explicit FormMenuPLU(Ambiente& ambiente);

  platform::Label Label2{*this};
  platform::Label Label3{*this};
  platform::Button Command1{*this};
  platform::Button Command2{*this};
  platform::Button Command3{*this};
  platform::Button Command4{*this};
  platform::Button Command5{*this};
  platform::Button Command6{*this};
  platform::Button Command7{*this};
  platform::Button Command8{*this};
  platform::Button Command9{*this};
  platform::Button Command10{*this};
  platform::Button Command11{*this};
  platform::Button Command12{*this};
  platform::Button Command13{*this};
  platform::Button Command14{*this};
  platform::Button Command15{*this};

 protected:
  void onLoad() override;
};

}  // namespace somme
