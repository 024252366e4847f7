#pragma once

#include <utility>

#include "exercises/blocks/forma_blocchi.h"
#include "exercises/core/testo_cifre.h"
#include "platform/base/numbers.h"

namespace somme {

// A blocks form on which the result is written into a box that comes when boards and carries are
// done. Enter, at its release, has it judged; once it is right the box is locked.
template <class Base>
class ConRisultatoScritto : public Base {
 public:
  template <class... Argomenti>
  explicit ConRisultatoScritto(Argomenti&&... argomenti)
      : Base(std::forward<Argomenti>(argomenti)...) {
    RaccogliCifre(TestoInput, [this] { GiudicaRisultato(); });
  }

  platform::TextBox TestoInput{*this};

 protected:
  void NascondiRisultato() override {
    TestoInput.setText({});
    TestoInput.setVisible(false);
    TestoInput.setLocked(false);
  }

  void ChiediRisultato() override {
    TestoInput.setVisible(true);
    TestoInput.setFocus();
  }

  void GiudicaRisultato() {
    if (TestoInput.isLocked()) return;
    const std::optional<double> risposta = NumeroScritto(TestoInput);
    if (!risposta) return;
    if (platform::toInt16(*risposta) != this->stato().Totale) {
      this->SegnaSbagliato();
      return;
    }
    this->SegnaRisolto();
    RisultatoGiusto();
  }

  // The last steps of a right result.
  virtual void RisultatoGiusto() {
    TestoInput.setLocked(true);
    this->PulsanteAvanti.setFocus();
  }
};

}  // namespace somme
