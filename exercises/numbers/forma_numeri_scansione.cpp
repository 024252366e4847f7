#include "exercises/numbers/forma_numeri_scansione.h"

namespace somme {

FormaNumeriScansione::FormaNumeriScansione(Ambiente& ambiente, const platform::FormDesign& disegno,
                                           const EsercizioNumeri& esercizio)
    : ConScansione(ambiente, disegno, esercizio) {}

void FormaNumeriScansione::onLoad() {
  ConScansione::onLoad();
  PreparaInput();
}

void FormaNumeriScansione::onActivate() {
  MostraInput();
  PosaTastiera(TastieraNumericaScansione1, LabelPerTastieraNumerica);
  TastieraNumericaScansione1.setVisible(true);
  NuovoCaso();
}

void FormaNumeriScansione::NuovoCaso() {
  newCase();
  TestoInput.Reimposta();
  if (const Livello* livello = GeneraCaso()) TestoInput.MaxLength.set(livello->cifre);
  ScriviDomanda();
  TastieraNumericaScansione1.Attiva();
  MettiModo(TastieraNumericaScansione1);
  TastieraNumericaScansione1.DisattivaAvanti();
}

void FormaNumeriScansione::SvuotaInput() {
  TestoInput.TestoPerInput();
  TestoInput.Text.set({});
}

void FormaNumeriScansione::RispostaGiusta() {
  SegnaGiusto();
  ScriviConRisposta();
  TastieraNumericaScansione1.AttivaAvanti();
}

}  // namespace somme
