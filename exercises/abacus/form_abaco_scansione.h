#pragma once

#include "exercises/abacus/con_palline_a_tasti.h"
#include "exercises/abacus/forma_abaco_scritta.h"
#include "exercises/core/con_scansione.h"

namespace somme {

// The abacus by scanning: the keyboard of place values puts the beads, and ten of a kind are
// carried by themselves, at every level; its last key passes on to the keyboard of digits, which
// writes the sum and leads to the next case. There is no way back from the one to the other.
//
// While a carry goes on, no keyboard is there. Where it finds the next spike full, none comes back,
// and the menu is the only way on. Settled. So is that closing the print panel wakes no keyboard,
// and that the box stays disabled from the first right sum on: the keys write into it all the same.
class FormAbacoScansione final : public ConDueTastiere<ConPallineATasti<FormaAbacoScritta>> {
 public:
  explicit FormAbacoScansione(Ambiente& ambiente);

  platform::Label LabelDimensioneTastiera{*this};  // hidden: the place of the keyboards

  // Shows the keyboard of place values again and puts the light on its first key.
  void RiattivaTastiera();

 protected:
  void onActivate() override;
  void NuovoCaso() override;

  void TastoHDU(qint16 tasto) override;
  void ScriviCifra(int cifra) override { AccodaCifra(TestoInput, cifra); }
  void SvuotaInput() override;
  [[nodiscard]] QString Scritto() const override { return TestoInput.Text.get(); }
  void Conferma() override { TestoInput.TerminaInserimento(); }
  void ApriAvanti() override { TastieraNumericaScansione1.AttivaAvanti(); }

  void PallinaInserita(const GenerePalline& genere) override;
  void Cambio(const GenerePalline& da) override;
  // That of the number which the counter names; it is not searched for.
  [[nodiscard]] int PallinaPerIlCambio(const GenerePalline& genere) const override;

 private:
  void PosaTastiere();
  void PassaAlleCifre();
};

}  // namespace somme
