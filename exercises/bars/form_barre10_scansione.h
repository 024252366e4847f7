#pragma once

#include "exercises/bars/forma_barre_scansione.h"

namespace somme {

// Bars up to 10, by scanning.
class FormBarre10Scansione final : public FormaBarreScansione {
 public:
  explicit FormBarre10Scansione(Ambiente& ambiente);

 protected:
  void onActivate() override;
  void ChiudiPannelloStampa() override;
};

}  // namespace somme
