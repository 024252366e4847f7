#pragma once

#include "exercises/bars/forma_barre_pulsanti.h"
#include "platform/forms/controls/text_box.h"

namespace somme {

// The bars forms on which the answer is typed: into a box that lies over the empty term of the
// written sum, in its colour. Enter, at its release, checks it.
class FormaBarreTastiera : public FormaBarrePulsanti {
 public:
  FormaBarreTastiera(Ambiente& ambiente, const platform::FormDesign& disegno,
                     const PortataBarre& portata);

  platform::TextBox TestoInput{*this};

 protected:
  void onLoad() override;
  void NuovoCaso() override;
  void Chiedi(const DomandaBarre& domanda) override;
  // It does not look at the locked state: Enter in the box of a solved case counts again, as
  // settled.
  void Controlla();
};

}  // namespace somme
