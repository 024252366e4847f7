#include "exercises/bars/forma_barre_tastiera.h"

#include "platform/base/numbers.h"
#include "platform/forms/keys/key_codes.h"

namespace somme {

namespace {

void SoloCifre(int& tasto) {
  if (tasto != platform::kKeyBackspace && !platform::isNumericCharacter(QChar(char16_t(tasto)))) {
    tasto = 0;
  }
}

}  // namespace

FormaBarreTastiera::FormaBarreTastiera(Ambiente& ambiente, const platform::FormDesign& disegno,
                                       int aiuti)
    : FormaBarrePulsanti(ambiente, disegno, aiuti) {
  TestoInput.onKeyPress(SoloCifre);
  TestoInput.onKeyUp([this](int tasto) {
    if (tasto == platform::kKeyEnter) Controlla();
  });
}

void FormaBarreTastiera::NuovoCaso() {
  newCase();
  TestoInput.setText({});
  TestoInput.setLocked(false);
  TestoInput.setFocus();
  NascondiSegno();
  PulsanteAvanti.setEnabled(false);
  NascondiAiuti();
  GeneraSecondoTipo();
}

void FormaBarreTastiera::Chiedi(const DomandaBarre& domanda) {
  const platform::Label& vuoto = Label4[domanda.termine];
  TestoInput.setPlace(vuoto.left(), vuoto.top(), vuoto.width(), vuoto.height());
  TestoInput.setForeColor(vuoto.foreColor());
}

void FormaBarreTastiera::Controlla() {
  const QString testo = TestoInput.text();
  if (platform::trimBlanks(testo).isEmpty()) return;
  if (platform::leadingNumber(testo) != risultatoAtteso()) {
    SegnaSbagliato();
    return;
  }
  SegnaRisolto();
  TestoInput.setLocked(true);
  PulsanteAvanti.setFocus();
}

}  // namespace somme
