#pragma once

#include "exercises/core/con_avanti.h"
#include "exercises/numbers/forma_numeri_input.h"

namespace somme {

// The number exercises for mouse and keyboard: the pupil types the number into `TestoInput`.
class FormaNumeriTastiera : public ConAvanti<FormaNumeriInput> {
 public:
  FormaNumeriTastiera(Ambiente& ambiente, const platform::FormDesign& disegno,
                      const EsercizioNumeri& esercizio);

 protected:
  void onLoad() override;
  void onActivate() override;
  void NuovoCaso() override;
  void RispostaGiusta() override;
};

}  // namespace somme
