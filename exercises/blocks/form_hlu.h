#pragma once

#include "exercises/blocks/con_cambi.h"
#include "exercises/blocks/con_risultato_scritto.h"
#include "exercises/blocks/forma_blocchi_pulsanti.h"

namespace somme {

// Flats, longs and units, sums up to 999, by mouse and keyboard.
class FormHLU final : public ConPiatti<ConDueCambi<ConRisultatoScritto<FormaBlocchiPulsanti>>> {
 public:
  explicit FormHLU(Ambiente& ambiente);
};

}  // namespace somme
