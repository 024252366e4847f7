#pragma once

#include "exercises/bars/forma_barre.h"
#include "exercises/bars/risposta_scritta.h"

namespace somme::inline barre {

// The bars forms on which the answer is typed.
class FormaBarreTastiera final : public FormaBarre {
 public:
  FormaBarreTastiera(Ambiente& ambiente, std::string_view nome, const VarianteBarre& variante);

  platform::TextBox TestoInput{*this};
  platform::Button PulsanteAiuto{*this};
  platform::Button PulsanteAvanti{*this};

 protected:
  void onLoad() override;
  void NuovoCaso() override { risposta_.NuovoCaso(); }
  void Chiedi(const DomandaBarre& domanda) override { CopriTermine(TestoInput, domanda); }

 private:
  RispostaScritta risposta_{*this, TestoInput, PulsanteAiuto, PulsanteAvanti};
};

extern const VarianteBarre kBarreTastiera10;
extern const VarianteBarre kBarreTastiera20;

}  // namespace somme::inline barre
