#pragma once

#include "exercises/blocks/con_cambi.h"
#include "exercises/blocks/forma_blocchi_hk.h"

namespace somme {

// Longs and units, sums up to 99, by touch.
class FormLUHK final : public ConCambio<FormaBlocchiHK> {
 public:
  explicit FormLUHK(Ambiente& ambiente);
};

}  // namespace somme
