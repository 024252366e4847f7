#pragma once

#include "platform/forms/form.h"
#include "printing/frm_avvia_stampa.h"

namespace prova {

// What a sheet asks of the print dialog for the form on the screen: A3 across, without margins.
[[nodiscard]] inline somme::frmAvviaStampa::Richiesta richiestaDelFoglio(platform::Form& forma) {
  somme::frmAvviaStampa::Richiesta richiesta;
  richiesta.oggetto = &forma;
  richiesta.larghezza = 420;
  richiesta.altezza = 297;
  richiesta.orientamento = 2;
  return richiesta;
}

}  // namespace prova
