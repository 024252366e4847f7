#pragma once

#include "exercises/core/con_avanti.h"
#include "exercises/numbers/forma_numeri.h"
#include "input/testo_input_numerico.h"

namespace somme {

// The number exercises for mouse and keyboard: the pupil types the number into `TestoInput`.
class FormaNumeriTastiera : public ConAvanti<FormaNumeri> {
 public:
  FormaNumeriTastiera(Ambiente& ambiente, const platform::FormDesign& disegno,
                      const EsercizioNumeri& esercizio);

  // Never shown: it carries place and font size of `TestoInput` through the resizing of the form.
  platform::TextBox TestoInputInvisibile{*this};
  TestoInputNumerico TestoInput{*this};

 protected:
  void onLoad() override;
  void onActivate() override;
  void NuovoCaso() override;

 private:
  void PosaTestoInput();
  void Giudica();
  void RispostaGiusta();
};

}  // namespace somme
