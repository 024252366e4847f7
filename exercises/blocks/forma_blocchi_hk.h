#pragma once

#include "exercises/blocks/forma_blocchi_pulsanti.h"
#include "exercises/core/con_helpikeys.h"
#include "platform/forms/control_array.h"

namespace somme {

// The blocks by touch: the keys of the sheet stand for the buttons, which the mouse works too.
// Nothing is written: once boards and carries are done the result shows and the case is solved.
//
// The key of `PulsanteAvanti` begins a new case at any moment, also while the button is disabled.
// That freedom is settled.
class FormaBlocchiHK : public ConHelpiKeys<FormaBlocchiPulsanti> {
 public:
  FormaBlocchiHK(Ambiente& ambiente, const platform::FormDesign& disegno,
                 const EsercizioBlocchi& esercizio);

  // The digits of the result, from hundreds to units; up to 99 the first is never shown.
  platform::ControlArray<platform::Label> Label4{*this};
  platform::MenuItem mnuStampaHK{*this};

 protected:
  void Agisci(Tasto tasto) override;
  void NascondiRisultato() override;
  void CasoFatto() override;
  void ChiediRisultato() override;

 private:
  // The first of the labels that this exercise uses.
  [[nodiscard]] int PrimaCifra() const;
  // A carry by its place among those of the exercise; none where there is no such.
  void CambiaSeCe(std::size_t quale);
};

}  // namespace somme
