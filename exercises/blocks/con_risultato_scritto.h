#pragma once

#include <utility>

#include "exercises/blocks/con_casella_risultato.h"

namespace somme {

// A blocks form on which the result is typed. Enter, at its release, has it judged; once it is
// right the box is locked.
template <class Base>
class ConRisultatoScritto : public ConCasellaRisultato<Base> {
 public:
  template <class... Argomenti>
  explicit ConRisultatoScritto(Argomenti&&... argomenti)
      : ConCasellaRisultato<Base>(std::forward<Argomenti>(argomenti)...) {
    RaccogliCifre(this->TestoInput, [this] {
      if (!this->TestoInput.isLocked()) this->GiudicaRisultato();
    });
  }

 protected:
  void onLoad() override {
    ConCasellaRisultato<Base>::onLoad();
    this->TestoInput.askForDigits();
  }

  void ChiediRisultato() override {
    this->TestoInput.setVisible(true);
    this->TestoInput.setFocus();
  }

  void RisultatoGiusto() override {
    this->TestoInput.setLocked(true);
    this->PulsanteAvanti.setFocus();
  }
};

}  // namespace somme
