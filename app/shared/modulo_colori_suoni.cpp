#include "app/shared/modulo_colori_suoni.h"

#include "app/shared/ambiente.h"

namespace somme::inline condiviso {

void Attendi(Ambiente& ambiente, double secondi) {
  platform::TimeSource& tempo = ambiente.servizi.tempo;
  // Clock and limit are compared as 32-bit floats, which late in the day have steps of 8 ms.
  auto adesso = static_cast<float>(tempo.secondsSinceMidnight());
  const auto limite = static_cast<float>(adesso + secondi);
  while (adesso < limite) {
    ambiente.fondo.gate().wait([&] { tempo.sleepUntilEvent(double(limite) - adesso); });
    adesso = static_cast<float>(tempo.secondsSinceMidnight());
  }
}

void RiproduciSuono(Ambiente& ambiente, const QString& nome) {
  if (!ambiente.stato.SuoniAttivi) return;
  ambiente.servizi.suono.play(
      QStringLiteral("%1/suoni/%2.wav").arg(ambiente.servizi.cartella, nome));
}

}  // namespace somme::inline condiviso
