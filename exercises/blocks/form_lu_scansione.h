#pragma once

#include "exercises/blocks/con_cambi.h"
#include "exercises/blocks/forma_blocchi_scansione.h"

namespace somme {

// Longs and units, sums up to 99, by scanning. The pointers stay as designed.
class FormLUScansione final : public ConCambio<FormaBlocchiScansione> {
 public:
  explicit FormLUScansione(Ambiente& ambiente);
};

}  // namespace somme
