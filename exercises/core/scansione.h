#pragma once

#include "app/shared/ambiente.h"
#include "input/tastiera_hdu_scansione.h"
#include "input/tastiera_numerica_scansione.h"
#include "input/testo_input_numerico.h"
#include "platform/forms/controls/text_box.h"

// What the scanning forms of all families do with their keyboards; see input_scansione.h.
namespace somme::inline nucleo {

// Gives a keyboard the place that a hidden label carries: width, top and left, in this order; its
// height follows from the width.
void PosaTastiera(TastieraScansione& tastiera, const platform::Control& etichetta);

// Manual scanning, or automatic scanning at the pace of the settings.
template <class Tastiera>
void MettiModoScansione(const StatoCondiviso& stato, Tastiera& tastiera) {
  if (stato.ModalitaInput == kScansioneManuale) {
    tastiera.ScansioneAutomatica.set(false);
  } else {
    tastiera.ScansioneAutomatica.set(true);
    tastiera.TempoScansione.set(stato.TempoScansione);
  }
}

// Gives the keys that show a picture their spoken names in the current language.
void NominaTasti(Ambiente& ambiente, TastieraNumericaScansione& tastiera);
void NominaTasti(Ambiente& ambiente, TastieraHDUScansione& tastiera);

}  // namespace somme::inline nucleo
