#pragma once

#include "exercises/numbers/forma_numeri.h"
#include "input/testo_input_numerico.h"

namespace somme {

// The number exercises on which a `TestoInputNumerico` takes the answer, typed or scanned.
class FormaNumeriInput : public FormaNumeri {
 public:
  FormaNumeriInput(Ambiente& ambiente, const platform::FormDesign& disegno,
                   const EsercizioNumeri& esercizio);

  // Never shown: it carries place and font size of `TestoInput` through the resizing of the form.
  platform::TextBox TestoInputInvisibile{*this};
  TestoInputNumerico TestoInput{*this};

 protected:
  // The last steps of Load: counters, the hidden box, the pointer.
  void PreparaInput();
  // The first steps of Activate: the record, a yield, the box at its place.
  void MostraInput();
  virtual void RispostaGiusta() = 0;
  // The operation with the confirmed answer, on the form and in the record.
  void ScriviConRisposta();

 private:
  void PosaTestoInput();
  void Giudica();
};

}  // namespace somme
