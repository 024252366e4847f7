#pragma once

#include "exercises/core/con_scansione.h"
#include "exercises/numbers/forma_numeri_input.h"

namespace somme {

// The number exercises by scanning: the keyboard of digits fills `TestoInput`, confirms, and leads
// on after a right answer. Closing the print panel does not wake the keyboard, as settled: that
// comes with the next case.
class FormaNumeriScansione : public ConScansione<FormaNumeriInput> {
 public:
  FormaNumeriScansione(Ambiente& ambiente, const platform::FormDesign& disegno,
                       const EsercizioNumeri& esercizio);

  platform::Label LabelPerTastieraNumerica{*this};  // hidden: the keyboard's place

 protected:
  void onLoad() override;
  void onActivate() override;
  void NuovoCaso() override;
  void RispostaGiusta() override;
  // After a wrong answer the digits go into the hidden box, until `SvuotaInput` brings it back.
  void ScriviCifra(int cifra) override { AccodaCifra(TestoInput, cifra); }
  void SvuotaInput() override;
  [[nodiscard]] QString Scritto() const override { return TestoInput.Text.get(); }
  void Conferma() override { TestoInput.TerminaInserimento(); }
};

}  // namespace somme
