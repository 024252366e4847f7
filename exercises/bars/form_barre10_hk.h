#pragma once

#include "exercises/bars/forma_barre_hk.h"

namespace somme {

// Bars up to 10, by touch.
class FormBarre10HK final : public FormaBarreHK {
 public:
  explicit FormBarre10HK(Ambiente& ambiente);
};

}  // namespace somme
