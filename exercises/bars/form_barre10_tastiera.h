#pragma once

#include "exercises/bars/forma_barre_tastiera.h"

namespace somme {

// Bars up to 10; the answer is typed. Only `FormBarre10` leads here, and the way back goes through
// the menu.
class FormBarre10Tastiera final : public FormaBarreTastiera {
 public:
  explicit FormBarre10Tastiera(Ambiente& ambiente);
};

}  // namespace somme
