#pragma once

#include "exercises/bars/comandi_barre.h"
#include "exercises/bars/forma_barre.h"
#include "platform/forms/controls/button_group.h"

namespace somme::inline barre {

// The bars forms on which the pupil answers with one of the numbered buttons, which take the colour
// of the bar that is asked for. From here alone, and without a way back, one comes to the form on
// which the answer is typed.
class FormaBarrePulsanti final : public FormaBarre {
 public:
  FormaBarrePulsanti(Ambiente& ambiente, std::string_view nome, const VarianteBarre& variante);

  platform::ControlArray<platform::Button> PulsanteNumero{*this};
  platform::Button PulsanteAiuto{*this};
  platform::Button PulsanteAvanti{*this};
  platform::MenuItem mnuTastiera{*this};

 protected:
  void onLoad() override;
  void NuovoCaso() override;
  void Chiedi(const DomandaBarre& domanda) override;

 private:
  void Rispondi(int numero);
  void RispostaGiusta(int numero);

  ComandiBarre comandi_{*this, PulsanteAiuto, PulsanteAvanti};
  platform::ButtonGroup numeri_;
};

extern const VarianteBarre kBarrePulsanti10;

}  // namespace somme::inline barre
