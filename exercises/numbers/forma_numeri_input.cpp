#include "exercises/numbers/forma_numeri_input.h"

#include "platform/base/numbers.h"

namespace somme {

FormaNumeriInput::FormaNumeriInput(Ambiente& ambiente, const platform::FormDesign& disegno,
                                   const EsercizioNumeri& esercizio)
    : FormaNumeri(ambiente, disegno, esercizio) {
  TestoInput.onConfermato([this] { Giudica(); });
}

void FormaNumeriInput::PreparaInput() {
  ScriviEsatti();
  ScriviErrati();
  TestoInput.setVisible(false);
  ImpostaCursoreSistema();
}

void FormaNumeriInput::MostraInput() {
  IniziaElenco(stato().TitoloEsercizio);
  letEventsRun();
  PosaTestoInput();
  TestoInput.setVisible(true);
}

void FormaNumeriInput::PosaTestoInput() {
  TestoInput.DimensioneTesto.set(platform::toInt16(TestoInputInvisibile.fontSize()));
  TestoInput.setTop(TestoInputInvisibile.top());
  TestoInput.setLeft(TestoInputInvisibile.left());
  TestoInput.setWidth(TestoInputInvisibile.width());
  TestoInput.setHeight(TestoInputInvisibile.height());
}

void FormaNumeriInput::ScriviConRisposta() {
  ScriviRisolta((this->*esercizio().risolta)(TestoInput.TestoFormattato));
}

void FormaNumeriInput::Giudica() {
  if (TestoInput.ValoreInserito == Cercato()) {
    RispostaGiusta();
  } else {
    SegnaSbagliato();
  }
}

}  // namespace somme
