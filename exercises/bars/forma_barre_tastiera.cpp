#include "exercises/bars/forma_barre_tastiera.h"

#include "exercises/core/testo_cifre.h"

namespace somme {

FormaBarreTastiera::FormaBarreTastiera(Ambiente& ambiente, const platform::FormDesign& disegno,
                                       const PortataBarre& portata)
    : FormaBarrePulsanti(ambiente, disegno, portata) {
  RaccogliCifre(TestoInput, [this] { Controlla(); });
}

void FormaBarreTastiera::onLoad() {
  FormaBarrePulsanti::onLoad();
  TestoInput.askForDigits();
}

void FormaBarreTastiera::NuovoCaso() {
  newCase();
  TestoInput.setText({});
  TestoInput.setLocked(false);
  TestoInput.setFocus();
  NascondiSegno();
  PulsanteAvanti.setEnabled(false);
  NascondiAiuti();
  GeneraPerTipo();
}

void FormaBarreTastiera::Chiedi(const DomandaBarre& domanda) {
  const platform::Label& vuoto = Label4[domanda.termine];
  TestoInput.setPlace(vuoto.left(), vuoto.top(), vuoto.width(), vuoto.height());
  TestoInput.setForeColor(vuoto.foreColor());
}

void FormaBarreTastiera::Controlla() {
  const std::optional<double> risposta = NumeroScritto(TestoInput);
  if (!risposta) return;
  if (*risposta != risultatoAtteso()) {
    SegnaSbagliato();
    return;
  }
  SegnaRisolto();
  TestoInput.setLocked(true);
  PulsanteAvanti.setFocus();
}

}  // namespace somme
