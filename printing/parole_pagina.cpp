#include "printing/parole_pagina.h"

#include "app/shared/mod_language_support.h"
#include "platform/forms/qt_message_boxes.h"
#include "platform/forms/qt_page_setup.h"

namespace somme::inline stampa {

platform::PageSetupWords ParolePagina(Ambiente& ambiente) {
  const auto parola = [&ambiente](const char* chiave, const QString& italiana) {
    return ParolaLingua(ambiente, QStringLiteral("PageSetup"), chiave, italiana);
  };
  return {.title = parola("Titolo", QStringLiteral("Imposta pagina")),
          .paper = parola("Carta", QStringLiteral("Carta:")),
          .orientation = parola("Orientamento", QStringLiteral("Orientamento:")),
          .portrait = parola("Verticale", QStringLiteral("Verticale")),
          .landscape = parola("Orizzontale", QStringLiteral("Orizzontale")),
          .color = parola("Colore", QStringLiteral("Stampa:")),
          .inColor = parola("AColori", QStringLiteral("A colori")),
          .inGray = parola("InGrigio", QStringLiteral("In grigio")),
          .ok = ParoleMessaggi(ambiente).ok,
          .cancel = parola("Annulla", QStringLiteral("Annulla"))};
}

}  // namespace somme::inline stampa
