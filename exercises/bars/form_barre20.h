#pragma once

#include "exercises/bars/con_segno.h"
#include "exercises/bars/forma_barre_tastiera.h"

namespace somme {

// Bars up to 20; the answer is typed, and the help marks where ten ends.
class FormBarre20 final : public ConSegno<FormaBarreTastiera> {
 public:
  explicit FormBarre20(Ambiente& ambiente);
};

}  // namespace somme
