#include "app/modulo1.h"

#include <QDateTime>

#include "app/shared/ambiente.h"
#include "app/shared/mod_language_support.h"
#include "app/shared/modulo_ini.h"
#include "app/shared/nomi_forme.h"
#include "cases/chiavi.h"

namespace somme::inline programma {

void Avvia(Ambiente& ambiente) {
  if (!ambiente.servizi.istanza.take()) {
    ambiente.fondo.showBox({TestoLingua(ambiente, chiavi::kGiaAperto), QStringLiteral("Error"),
                            platform::BoxIcon::Critical, platform::BoxButtons::Ok});
    ambiente.fondo.endProcess(0);
    return;
  }
  ImpostaDefault(ambiente.stato);
  ambiente.servizi.sorte.seed(static_cast<quint64>(QDateTime::currentMSecsSinceEpoch()));
  CaricaStringhe(ambiente);
  try {
    ambiente.fondo.forms().show(forme::kFormAvvio);
  } catch (const platform::Unwind&) {
    // The window was closed while the first form was still coming up.
  }
}

}  // namespace somme::inline programma
