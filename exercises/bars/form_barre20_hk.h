#pragma once

#include "exercises/bars/con_segno.h"
#include "exercises/bars/forma_barre_hk.h"

namespace somme {

// Bars up to 20, by touch; the help marks where ten ends.
class FormBarre20HK final : public ConSegno<FormaBarreHK> {
 public:
  explicit FormBarre20HK(Ambiente& ambiente);

 protected:
  void NuovoCaso() override;
};

}  // namespace somme
