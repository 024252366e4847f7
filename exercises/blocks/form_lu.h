#pragma once

#include "exercises/blocks/con_cambi.h"
#include "exercises/blocks/con_risultato_scritto.h"
#include "exercises/blocks/forma_blocchi_pulsanti.h"

namespace somme {

// Longs and units, sums up to 99, by mouse and keyboard.
class FormLU final : public ConCambio<ConRisultatoScritto<FormaBlocchiPulsanti>> {
 public:
  explicit FormLU(Ambiente& ambiente);
};

}  // namespace somme
