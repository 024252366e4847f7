#pragma once

#include "exercises/core/input_scansione.h"
#include "exercises/core/scansione.h"
#include "exercises/numbers/casella_posata.h"
#include "exercises/numbers/forma_numeri.h"

namespace somme::inline numeri {

// The number exercises by scanning: the keyboard of digits fills `TestoInput`, confirms, and leads
// on after a right answer. Closing the print panel does not wake the keyboard: that comes with the
// next case.
class FormaNumeriScansione final : public FormaNumeri {
 public:
  FormaNumeriScansione(Ambiente& ambiente, std::string_view nome, const EsercizioNumeri& esercizio);

  platform::TextBox TestoInputInvisibile{*this};
  TestoInputNumerico TestoInput{*this};
  TastieraNumericaScansione TastieraNumericaScansione1{*this};
  platform::Label LabelPerTastieraNumerica{*this};  // hidden: the keyboard's place

 protected:
  void onLoad() override;
  void MostraRisposta() override;
  void NuovoCaso() override;
  void RispostaGiusta() override;

 private:
  CasellaPosata casella_{TestoInput, TestoInputInvisibile};
  InputScansione scansione_{*this, TastieraNumericaScansione1,
                            CifreScanditeIn(TestoInput, {.avanti = [this] { NuovoCaso(); }})};
};

}  // namespace somme::inline numeri
