#pragma once

#include <optional>

#include "exercises/blocks/forma_blocchi.h"
#include "exercises/core/testo_cifre.h"
#include "platform/base/numbers.h"
#include "platform/forms/controls/text_box.h"

namespace somme {

// A blocks form on which the result stands in a box that comes when boards and carries are done,
// and is judged there. How it gets into the box is left to the forms.
template <class Base>
class ConCasellaRisultato : public Base {
 public:
  using Base::Base;

  platform::TextBox TestoInput{*this};

 protected:
  void NascondiRisultato() override {
    TestoInput.setText({});
    TestoInput.setVisible(false);
    TestoInput.setLocked(false);
  }

  // An empty box is no answer.
  void GiudicaRisultato() {
    const std::optional<double> risposta = NumeroScritto(TestoInput);
    if (!risposta) return;
    if (platform::toInt16(*risposta) != this->stato().Totale) {
      this->SegnaSbagliato();
      return;
    }
    this->SegnaRisolto();
    RisultatoGiusto();
  }

  // What a form does last when the result is right.
  virtual void RisultatoGiusto() {}
};

}  // namespace somme
