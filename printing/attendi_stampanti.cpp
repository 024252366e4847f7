#include "printing/attendi_stampanti.h"

#include "app/shared/ambiente.h"
#include "app/shared/mod_language_support.h"
#include "platform/forms/wait_sign.h"

namespace somme::inline stampa {

void AttendiStampanti(Ambiente& ambiente, const std::function<void()>& lavoro) {
  platform::waitVisibly(ambiente.fondo,
                        ParolaLingua(ambiente, QStringLiteral("Printers"), "Attesa",
                                     QStringLiteral("Attendo la stampante…")),
                        lavoro);
}

}  // namespace somme::inline stampa
