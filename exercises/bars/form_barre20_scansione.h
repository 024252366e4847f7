#pragma once

#include "exercises/bars/forma_barre_scansione.h"
#include "platform/forms/controls/line.h"

namespace somme {

// Bars up to 20, by scanning. Each case writes all three terms of the sum, the one that is asked
// for under the box, and the first in yellow, as on no other form: settled. The box takes the
// colour of the term that it lies on, in the first case that of the activation.
class FormBarre20Scansione final : public FormaBarreScansione {
 public:
  explicit FormBarre20Scansione(Ambiente& ambiente);

  platform::Line Line1{*this};

 protected:
  void onActivate() override;
  void NuovoCaso() override;
  void NascondiSegno() override { Line1.setVisible(false); }
  void MostraAiuto() override;
  void ChiudiPannelloStampa() override;
  [[nodiscard]] platform::Rgb ColoreRisposta(const DomandaBarre& domanda) const override {
    return Label4[domanda.termine].foreColor();
  }
};

}  // namespace somme
