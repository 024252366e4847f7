#pragma once

#include "exercises/abacus/con_palline_a_tasti.h"
#include "exercises/core/con_avanti.h"
#include "exercises/core/con_helpikeys.h"

namespace somme {

// The abacus by touch: the keys of the sheet put the beads and carry, and the abacus itself is the
// answer. Only its value counts, which may stand with ten beads on a spike; no carry is demanded.
// The digits of the sum show once it is right.
//
// The mouse does the rest, and stays free while a carry goes on.
class FormAbacoHK final : public ConHelpiKeys<ConPallineATasti<ConAvanti<FormaAbaco>>> {
 public:
  explicit FormAbacoHK(Ambiente& ambiente);

  platform::PictureBox Picture1{*this};  // the frame of the two buttons
  platform::Button PulsanteCestino{*this};
  platform::Button PulsanteConferma{*this};
  // The digits of the sum, from thousands to units.
  platform::ControlArray<platform::Label> Label2{*this};
  platform::MenuItem mnuStampaHP{*this};

  // True while a carry goes on, in which all keys are dropped. A carry that finds the next spike
  // full leaves it true: then only the mouse can go on to another case. Settled.
  bool CambioInCorso = false;

 protected:
  void Agisci(Tasto tasto) override;
  void onLoad() override;
  void DopoLaRichiesta() override;
  void NuovoCaso() override;
  void Cambio(const GenerePalline& da) override;

 private:
  // A bead for a sum that has such digits; else the sound of what is wrong.
  void InserisciSeServe(int almeno, void (ConPallineATasti::*inserisci)());
  void ScriviCifre();
  void MostraCifre();
  void Conferma();
};

}  // namespace somme
