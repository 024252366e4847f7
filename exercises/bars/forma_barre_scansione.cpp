#include "exercises/bars/forma_barre_scansione.h"

#include "platform/base/numbers.h"

namespace somme {

FormaBarreScansione::FormaBarreScansione(Ambiente& ambiente, const platform::FormDesign& disegno,
                                         const PortataBarre& portata)
    : ConScansione(ambiente, disegno, portata) {}

void FormaBarreScansione::onLoad() {
  ConScansione::onLoad();
  IniziaEsercizio();
}

void FormaBarreScansione::NuovoCaso() {
  newCase();
  TastieraNumericaScansione1.DisattivaAvanti();
  TestoInput.setText({});
  NascondiAiuti();
  NascondiSegno();
  GeneraPerTipo();
}

void FormaBarreScansione::Chiedi(const DomandaBarre& domanda) {
  const platform::Label& vuoto = Label4[domanda.termine];
  TestoInput.setPlace(vuoto.left(), vuoto.top(), vuoto.width(), vuoto.height());
  TestoInput.setForeColor(ColoreRisposta(domanda));
}

void FormaBarreScansione::Conferma() {
  if (platform::leadingNumber(TestoInput.text()) != risultatoAtteso()) {
    SegnaSbagliato([this] { TastieraNumericaScansione1.SelezionaCestino(); });
    return;
  }
  SegnaGiusto([this] { TastieraNumericaScansione1.AttivaAvanti(); });
  MostraNumeri();
  AggiungiAllElenco();
  Label4.forEach([](platform::Label& termine) { termine.setVisible(true); });
}

}  // namespace somme
