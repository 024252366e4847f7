#pragma once

#include "exercises/bars/forma_barre.h"
#include "exercises/core/con_avanti.h"

namespace somme {

// The bars forms that are worked by mouse and keyboard: help and the way on are buttons.
class FormaBarrePulsanti : public ConAvanti<FormaBarre> {
 public:
  FormaBarrePulsanti(Ambiente& ambiente, const platform::FormDesign& disegno,
                     const PortataBarre& portata);

  platform::Button PulsanteAiuto{*this};

 protected:
  void onLoad() override;
  void onActivate() override;
  // The steps of a right answer up to the written sum.
  void SegnaRisolto();
};

}  // namespace somme
