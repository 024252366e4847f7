#pragma once

#include "exercises/bars/forma_barre_pulsanti.h"
#include "platform/forms/controls/button_group.h"

namespace somme {

// Bars up to 10; the pupil answers with one of eleven numbered buttons, which take the colour of
// the bar that is asked for.
class FormBarre10 final : public FormaBarrePulsanti {
 public:
  explicit FormBarre10(Ambiente& ambiente);

  platform::ControlArray<platform::Button> PulsanteNumero{*this};
  platform::MenuItem mnuTastiera{*this};

 protected:
  void onLoad() override;
  void NuovoCaso() override;
  void Chiedi(const DomandaBarre& domanda) override;

 private:
  void Rispondi(int numero);
  void RispostaGiusta(int numero);

  platform::ButtonGroup numeri_;
};

}  // namespace somme
