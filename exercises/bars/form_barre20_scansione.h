#pragma once

#include "exercises/bars/con_segno.h"
#include "exercises/bars/forma_barre_scansione.h"

namespace somme {

// Bars up to 20, by scanning. Each case writes all three terms of the sum, the one that is asked
// for under the box, and the first in yellow, as on no other form: settled. The box takes the
// colour of the term that it lies on, in the first case that of the activation.
class FormBarre20Scansione final : public ConSegno<FormaBarreScansione> {
 public:
  explicit FormBarre20Scansione(Ambiente& ambiente);

 protected:
  void onActivate() override;
  void NuovoCaso() override;
  void MostraAiuto() override;
  void ChiudiPannelloStampa() override;
  [[nodiscard]] platform::Rgb ColoreRisposta(const DomandaBarre& domanda) const override {
    return Label4[domanda.termine].foreColor();
  }
};

}  // namespace somme
