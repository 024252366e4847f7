#include "exercises/numbers/forma_numeri_tastiera.h"

namespace somme {

FormaNumeriTastiera::FormaNumeriTastiera(Ambiente& ambiente, const platform::FormDesign& disegno,
                                         const EsercizioNumeri& esercizio)
    : ConAvanti(ambiente, disegno, esercizio) {}

void FormaNumeriTastiera::onLoad() {
  ConAvanti::onLoad();
  PulsanteAvanti.setVisible(true);
  PreparaInput();
}

void FormaNumeriTastiera::onActivate() {
  MostraInput();
  NuovoCaso();
}

void FormaNumeriTastiera::NuovoCaso() {
  newCase();
  TestoInput.Enabled.set(true);
  letEventsRun();
  PulsanteAvanti.setEnabled(false);
  TestoInput.Reimposta();
  if (const Livello* livello = GeneraCaso()) TestoInput.MaxLength.set(livello->cifre);
  ScriviDomanda();
  TestoInput.setFocus();
}

void FormaNumeriTastiera::RispostaGiusta() {
  SegnaGiusto();
  PulsanteAvanti.setEnabled(true);
  ScriviConRisposta();
  if (esercizio().finale == EsercizioNumeri::Finale::DisabilitaPoiFuoco) {
    TestoInput.Enabled.set(false);
    PulsanteAvanti.setFocus();
  } else {
    PulsanteAvanti.setFocus();
    TestoInput.Enabled.set(false);
  }
}

}  // namespace somme
