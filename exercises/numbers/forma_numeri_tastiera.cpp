#include "exercises/numbers/forma_numeri_tastiera.h"

#include "platform/base/numbers.h"

namespace somme {

FormaNumeriTastiera::FormaNumeriTastiera(Ambiente& ambiente, const platform::FormDesign& disegno,
                                         const EsercizioNumeri& esercizio)
    : ConAvanti(ambiente, disegno, esercizio) {
  TestoInput.onConfermato([this] { Giudica(); });
}

void FormaNumeriTastiera::onLoad() {
  ConAvanti::onLoad();
  PulsanteAvanti.setVisible(true);
  ScriviEsatti();
  ScriviErrati();
  TestoInput.setVisible(false);
  ImpostaCursoreSistema();
}

void FormaNumeriTastiera::onActivate() {
  IniziaElenco(stato().TitoloEsercizio);
  letEventsRun();
  PosaTestoInput();
  TestoInput.setVisible(true);
  NuovoCaso();
}

void FormaNumeriTastiera::PosaTestoInput() {
  TestoInput.DimensioneTesto.set(platform::toInt16(TestoInputInvisibile.fontSize()));
  TestoInput.setTop(TestoInputInvisibile.top());
  TestoInput.setLeft(TestoInputInvisibile.left());
  TestoInput.setWidth(TestoInputInvisibile.width());
  TestoInput.setHeight(TestoInputInvisibile.height());
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

void FormaNumeriTastiera::Giudica() {
  if (TestoInput.ValoreInserito == Cercato()) {
    RispostaGiusta();
  } else {
    SegnaSbagliato();
  }
}

void FormaNumeriTastiera::RispostaGiusta() {
  SegnaGiusto();
  PulsanteAvanti.setEnabled(true);
  ScriviRisolta((this->*esercizio().risolta)(TestoInput.TestoFormattato));
  if (esercizio().finale == EsercizioNumeri::Finale::DisabilitaPoiFuoco) {
    TestoInput.Enabled.set(false);
    PulsanteAvanti.setFocus();
  } else {
    PulsanteAvanti.setFocus();
    TestoInput.Enabled.set(false);
  }
}

}  // namespace somme
