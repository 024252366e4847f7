#include "exercises/abacus/forma_abaco_scritta.h"

#include "platform/base/numbers.h"

namespace somme {

namespace {

constexpr int kSovrapposti = 20;  // twips by which the box reaches under the operation

}  // namespace

FormaAbacoScritta::FormaAbacoScritta(Ambiente& ambiente, const platform::FormDesign& disegno)
    : FormaAbaco(ambiente, disegno) {
  TestoInput.onConfermato([this] { Giudica(); });
}

void FormaAbacoScritta::onLoad() {
  FormaAbaco::onLoad();
  TestoInput.setVisible(false);
}

void FormaAbacoScritta::PosaTestoInput() {
  TestoInput.setTop(EtOperazione.top());
  TestoInput.setLeft(EtOperazione.left() + EtOperazione.width() - kSovrapposti);
  TestoInput.setWidth(static_cast<double>(platform::roundHalfEven(EtOperazione.width()) / 2));
  TestoInput.setHeight(EtOperazione.height());
  TestoInput.DimensioneTesto.set(platform::toInt16(EtOperazione.fontSize()));
}

void FormaAbacoScritta::Giudica() {
  if (TestoInput.ValoreInserito != stato().Totale) {
    SegnaSbagliato();
    Correggi();
    return;
  }
  SegnaGiusto();
  ApriAvanti();
  TestoInput.Enabled.set(false);
  AggiungiRiga(EtOperazione.caption() + stringhe().Spazio + TestoInput.TestoFormattato);
  FuocoAvanti();
}

}  // namespace somme
