#pragma once

#include "exercises/blocks/con_cambi.h"
#include "exercises/blocks/forma_blocchi_scansione.h"

namespace somme {

// Flats, longs and units, sums up to 999, by scanning.
class FormHLUScansione final : public ConDueCambi<FormaBlocchiScansione> {
 public:
  explicit FormHLUScansione(Ambiente& ambiente);

 protected:
  void onLoad() override;
};

}  // namespace somme
