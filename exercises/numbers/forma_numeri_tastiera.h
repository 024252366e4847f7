#pragma once

#include "exercises/numbers/casella_posata.h"
#include "exercises/numbers/forma_numeri.h"

namespace somme::inline numeri {

// The number exercises for mouse and keyboard: the pupil types the number into `TestoInput`.
class FormaNumeriTastiera final : public FormaNumeri {
 public:
  FormaNumeriTastiera(Ambiente& ambiente, std::string_view nome, const EsercizioNumeri& esercizio);

  platform::TextBox TestoInputInvisibile{*this};
  TestoInputNumerico TestoInput{*this};
  platform::Button PulsanteAvanti{*this};

 protected:
  void onLoad() override;
  void MostraRisposta() override { casella_.Mostra(); }
  void NuovoCaso() override;
  void RispostaGiusta() override;

 private:
  CasellaPosata casella_{TestoInput, TestoInputInvisibile};
};

}  // namespace somme::inline numeri
