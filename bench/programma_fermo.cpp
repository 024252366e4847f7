#include "programma_fermo.h"

#include <QApplication>
#include <QFileInfo>
#include <cstdio>
#include <cstdlib>

#include "app/modulo1.h"
#include "app/tabella_forme.h"
#include "immagini/immagini.h"
#include "platform/forms/appearance.h"

namespace bench {

quint16 siMetteInAscolto(somme::tavoletta::Tavoletta& tavoletta) {
  if (!tavoletta.Ascolta(0)) {
    std::fprintf(stderr, "no port is free for the stand-in of the touch surface\n");
    std::exit(1);
  }
  return tavoletta.Porta();
}

ProgrammaFermo::ProgrammaFermo(const QString& cartella, const Propri& propri)
    : ambiente(servizi(cartella, propri), somme::LeForme()) {
  somme::Avvia(ambiente);
}

somme::Servizi ProgrammaFermo::servizi(const QString& cartella, const Propri& propri) {
  const auto scelto = [](auto* proprio, auto& fermo) -> decltype(*proprio) {
    if (proprio != nullptr) return *proprio;
    return fermo;
  };
  somme::Servizi servizi{tempo_,
                         sorte_,
                         scelto(propri.suono, suono_),
                         messaggi_,
                         scelto(propri.annunci, annunci_),
                         immagini_,
                         documenti_,
                         fine_,
                         istanza_,
                         scelto(propri.stampanti, stampanti_),
                         pagina_,
                         scelto(propri.rete, rete_),
                         cartella};
  if (propri.porta != 0) servizi.porta = propri.porta;
  return servizi;
}

int misuraConCartella(int argc, char* argv[],
                      const std::function<bool(const QString& cartella)>& lavoro) {
  QApplication programma(argc, argv);
  platform::applyAppearance();
  somme::PreparaImmagini();
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s FOLDER-OF-THE-PROGRAM\n", argv[0]);
    return 2;
  }
  const bool bene = lavoro(QFileInfo(QString::fromLocal8Bit(argv[1])).absoluteFilePath());
  std::fflush(stdout);
  std::_Exit(bene ? 0 : 1);
}

}  // namespace bench
