#pragma once

#include <utility>

#include "platform/forms/controls/button.h"

namespace somme {

// An exercise form, or a base of some, with the button that leads from a solved case to the next.
// The scanning forms have none: a key of their keyboard has its role.
template <class Base>
class ConAvanti : public Base {
 public:
  template <class... Argomenti>
  explicit ConAvanti(Argomenti&&... argomenti) : Base(std::forward<Argomenti>(argomenti)...) {
    PulsanteAvanti.onClick([this] { this->NuovoCaso(); });
  }

  platform::Button PulsanteAvanti{*this};
};

}  // namespace somme
