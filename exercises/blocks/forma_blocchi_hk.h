#pragma once

#include "exercises/blocks/pulsanti_blocchi.h"
#include "exercises/core/input_tocco.h"
#include "platform/forms/control_array.h"

namespace somme::inline blocchi {

// The blocks by touch: the keys of the sheet stand for the buttons, which the mouse works too.
// Nothing is written: once boards and carries are done the result shows and the case is solved.
//
// The key of `PulsanteAvanti` begins a new case at any moment, also while the button is disabled.
// Kept: see docs/oddities.md.
class FormaBlocchiHK final : public FormaBlocchi {
 public:
  FormaBlocchiHK(Ambiente& ambiente, std::string_view nome, const VarianteBlocchi& variante);

  platform::ControlArray<platform::Socket> ControlloConnessione{*this};
  PulsantiBlocchi pulsanti{*this};
  // The digits of the result, from hundreds to units; up to 99 the first is never shown.
  platform::ControlArray<platform::Label> Label4{*this};
  platform::Button PulsanteAvanti{*this};
  platform::MenuItem mnuStampaHK{*this};

  [[nodiscard]] bool HelpiKeysConnesso() const { return tocco_.HelpiKeysConnesso(); }

 protected:
  void onLoad() override;
  void ChiudiAvanti() override { PulsanteAvanti.setEnabled(false); }
  void ApriAvanti() override { PulsanteAvanti.setEnabled(true); }
  platform::Control& Comandi() override { return pulsanti.PicturePulsanti; }
  void MettiComandi() override;
  void NascondiRisultato() override;
  void CasoFatto() override;
  void ChiediRisultato() override;
  void RisultatoGiusto() override { PulsanteAvanti.setFocus(); }

 private:
  // Does what a key of the sheet does.
  void Agisci(Tasto tasto);
  // The label of a digit of the result.
  [[nodiscard]] platform::Label& EtichettaDi(Posto cifra);

  InputTocco tocco_;
};

// Up to 99 and up to 999.
extern const VarianteBlocchi kBlocchiHK99;
extern const VarianteBlocchi kBlocchiHK999;

}  // namespace somme::inline blocchi
