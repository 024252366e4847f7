#pragma once

#include <utility>

#include "exercises/bars/disegno_barre.h"
#include "platform/forms/controls/line.h"

namespace somme {

// A bars form whose help marks where ten ends.
template <class Base>
class ConSegno : public Base {
 public:
  using Base::Base;

  platform::Line Line1{*this};

 protected:
  void PosaSegno() override {
    constexpr int kDecina = 10;
    Line1.setX1(this->FineDi(kDecina));
    Line1.setX2(this->FineDi(kDecina));
  }
  void NascondiSegno() override { Line1.setVisible(false); }
  void MostraAiuto() override {
    constexpr int kFinoA = 20;
    if (this->stato().LimiteEsercizio == kFinoA) Line1.setVisible(true);
    Base::MostraAiuto();
  }
};

namespace disegno {

// da, a: where the mark begins and ends inside the panel, twips; its place is that of the form's
// unit. F: the form.
template <class F>
constexpr Row Segno(double da, double a, bool nascosto = true) {
  return row<&F::Line1>({4890, da, 0, a - da}, {.toolTip = "Qui finisce la decina",
                                                .hidden = nascosto,
                                                .borderWidth = 2,
                                                .in = nameOf<&FormaBarre::Picture1>});
}

}  // namespace disegno

}  // namespace somme
