#pragma once

#include "exercises/blocks/pulsanti_blocchi.h"

namespace somme::inline blocchi {

// The blocks by mouse and keyboard: buttons put them, and the result is typed. Enter, at its
// release, has it judged; once it is right the box is locked.
class FormaBlocchiTastiera final : public FormaBlocchi {
 public:
  FormaBlocchiTastiera(Ambiente& ambiente, std::string_view nome, const VarianteBlocchi& variante);

  PulsantiBlocchi pulsanti{*this};
  platform::TextBox TestoInput{*this};
  platform::Button PulsanteAvanti{*this};

 protected:
  void onLoad() override;
  void ChiudiAvanti() override { PulsanteAvanti.setEnabled(false); }
  void ApriAvanti() override { PulsanteAvanti.setEnabled(true); }
  platform::Control& Comandi() override { return pulsanti.PicturePulsanti; }
  void MettiComandi() override;
  void NascondiRisultato() override { NascondiCasella(TestoInput); }
  void ChiediRisultato() override;
  void RisultatoGiusto() override;
};

// Up to 99 and up to 999.
extern const VarianteBlocchi kBlocchiTastiera99;
extern const VarianteBlocchi kBlocchiTastiera999;

}  // namespace somme::inline blocchi
