#pragma once

#include "exercises/blocks/con_cambi.h"
#include "exercises/blocks/forma_blocchi_hk.h"

namespace somme {

// Flats, longs and units, sums up to 999, by touch.
class FormHLUHK final : public ConPiatti<ConDueCambi<FormaBlocchiHK>> {
 public:
  explicit FormHLUHK(Ambiente& ambiente);
};

}  // namespace somme
