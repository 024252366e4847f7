// What happens around the program: to the touch surface, the clock, the window, the printers.
#include <QCoreApplication>
#include <array>

#include "app/shared/foglio_tasti.h"
#include "scimmia/gesti.h"
#include "support/tocchi.h"

namespace prova {

using platform::Form;

void Gesti::rete(int profondita) {
  ReteDiProva& rete = banco_.rete;
  static constexpr auto kTastiere = std::to_array<const somme::Tastiera*>(
      {&somme::kTastieraCifre, &somme::kTastieraBlocchi, &somme::kTastieraAbaco});
  const int come = dadi_.fino(60);
  if (come < 45) {
    const somme::Tastiera& tastiera = *dadi_.uno(kTastiere);
    const int quale = dadi_.tra(1, tastiera.Posti());
    racconto_.annota(profondita, QStringLiteral("touch %1 of %2").arg(quale).arg(tastiera.Posti()));
    tocca(banco_, tastiera, quale);
  } else if (come < 52) {
    racconto_.annota(profondita, QStringLiteral("OK"));
    rete.manda("OK");
  } else if (come < 57) {
    QByteArray rapporto;
    const int lungo = dadi_.tra(2, 9);
    for (int i = 0; i < lungo; ++i) rapporto.append(char(dadi_.fino(256)));
    racconto_.annota(profondita, QStringLiteral("says ") + QString::fromLatin1(rapporto.toHex()));
    rete.accoda(rapporto);
  } else if (dadi_.unoSu(12)) {
    racconto_.annota(profondita, QStringLiteral("says one character"));
    disturbi_.rapporto = disturbi_.rapporto || rete.collegata();
    rete.manda("x");
  } else if (dadi_.unoSu(12)) {
    racconto_.annota(profondita, QStringLiteral("HelpiKeys goes"));
    disturbi_.rete = true;
    if (rete.collegata()) rete.stacca();
    rete.accoglienza = dadi_.uno(std::to_array<ReteDiProva::Accoglienza>(
        {ReteDiProva::Accoglienza::Accetta, ReteDiProva::Accoglienza::Rifiuta,
         ReteDiProva::Accoglienza::Tace}));
  }
}

// A link that chatters: all that the surface can say in one go, torn apart and run together as a
// network may do it.
void Gesti::chiacchiera(int profondita) {
  constexpr int kMolte = 60;
  const int frasi = dadi_.tra(2, kMolte);
  const bool soloOk = dadi_.unoSu(3);
  racconto_.annota(profondita, QStringLiteral("chatters %1 only OK %2").arg(frasi).arg(soloOk));
  disturbi_.rapporto = true;  // what is torn off may be one character
  QByteArray detto;
  for (int i = 0; i < frasi && !chiuso(); ++i) {
    const int frase = soloOk ? 0 : dadi_.fino(3);
    if (frase == 0) detto += "OK";
    if (frase == 1) detto += QByteArray("..1").replace(0, 1, QByteArray(1, char(dadi_.fino(256))));
    if (frase == 2) detto += QByteArray(dadi_.tra(1, 9), char(dadi_.fino(256)));
    if (dadi_.unoSu(3)) continue;
    const qsizetype fino = dadi_.tra(1, int(detto.size()));
    if (dadi_.unoSu(2)) {
      banco_.rete.manda(detto.left(fino));
    } else {
      banco_.rete.accoda(detto.left(fino));
    }
    detto.remove(0, fino);
  }
}

void Gesti::orologio(int profondita) {
  constexpr auto kPassi = std::to_array<double>({0.02, 0.1, 0.3, 1, 1, 2.5, 6});
  const double passo = dadi_.uno(kPassi);
  racconto_.annota(profondita, QStringLiteral("time %1").arg(passo));
  banco_.tempo.advance(passo);
}

void Gesti::lato(int profondita) {
  const QSize lato = dadi_.unoSu(10) ? QSize(dadi_.tra(1, 60), dadi_.tra(1, 60))
                                     : QSize(dadi_.tra(300, 1700), dadi_.tra(200, 1100));
  racconto_.annota(profondita, QStringLiteral("size %1x%2").arg(lato.width()).arg(lato.height()));
  // The bars take their places in the window that was read at their activation: put into a small
  // window they lie far out in a large one, where the next activation finds them.
  for (const std::shared_ptr<Form>& forma : banco_.ambiente->fondo.forms().all()) {
    disturbi_.lato = disturbi_.lato || forma->name().startsWith(QStringLiteral("FormBarre"));
  }
  banco_.ambiente->fondo.window().resize(lato);
}

void Gesti::perdiIlFuoco(int profondita) {
  racconto_.annota(profondita, QStringLiteral("focus lost"));
  altra_.show();
  altra_.activateWindow();
  QCoreApplication::processEvents();
  if (dadi_.unoSu(2)) banco_.tempo.advance(0.4);
  torna();
}

void Gesti::lingua(int profondita) {
  static const QStringList kLingue{QStringLiteral("Italiano"), QStringLiteral("English")};
  banco_.ambiente->stato.LinguaCorrente = dadi_.uno(kLingue);
  racconto_.annota(profondita, QStringLiteral("language ") + banco_.ambiente->stato.LinguaCorrente);
  for (const std::shared_ptr<Form>& forma : banco_.ambiente->fondo.forms().all()) {
    forma->run([&] { somme::ApplicaLingua(*banco_.ambiente, *forma); },
               platform::Gate::Cases::DoNotMatter);
  }
}

void Gesti::stampanti(int profondita) {
  StampantiDiProva& stampanti = banco_.stampanti;
  const int come = dadi_.fino(6);
  racconto_.annota(profondita, QStringLiteral("printers %1").arg(come));
  if (come == 0) {
    stampanti.nessuna();
    disturbi_.stampante = true;
  } else if (come == 1) {
    stampanti.esito = {0, false};
    disturbi_.stampante = true;
  } else if (come == 2) {
    // A print server that takes its time, up to more than anybody waits.
    disturbi_.lentezza = dadi_.uno(std::to_array<double>({0.2, 1, 3, 9.9, 25}));
  } else {
    disturbi_.lentezza = 0;
    stampanti.metti(QStringLiteral("Prova"), StampanteDiProva());
    stampanti.elenco.standard = QStringLiteral("Prova");
    stampanti.esito = {17, true};
  }
}

void Gesti::chiudi(int profondita) {
  if (!libera()) return;
  racconto_.annota(profondita, QStringLiteral("the window is closed"));
  banco_.ambiente->fondo.window().close();
}

}  // namespace prova
