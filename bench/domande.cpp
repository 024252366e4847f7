// What a verdict costs while a screen reader asks: right answers on a real display, by a key, the
// place of the verdict watched from the display server's side.
//
//   bench_domande FOLDER-OF-THE-PROGRAM
//
// Says "ready", then takes lines of text: the name of a form, and answers with two words for each
// answer that it gave, the milliseconds from the key to the picture of its verdict, and those of
// the processor that the program had meanwhile. With an empty line, or none any more, it ends.
#include <QApplication>
#include <array>
#include <cstdio>
#include <iostream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "app/shared/ambiente.h"
#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "exercises/core/forma_esercizio.h"
#include "figura.h"
#include "mano.h"
#include "platform/forms/qt_announcer.h"
#include "programma_fermo.h"
#include "schermo.h"
#include "support/come_dal_menu.h"
#include "support/nomi_esercizi.h"

namespace {

const int kVerdetti = bench::quanti(100, 15);
// Seconds for a form to show; and between two keys, in which the reader asks on.
constexpr double kApertura = 1;
constexpr double kPausa = 0.05;
constexpr int kVolte = 200;  // pauses until the next case is there

// The forms on which a button gives the answer: how the buttons of the numbers are called there.
struct Esercizio {
  std::string_view forma;
  const char* numeri;
  int (*risposta)(const somme::StatoCondiviso& stato);
};
constexpr auto kEsercizi = std::to_array<Esercizio>({
    {somme::forme::kFormBarre10, "PulsanteNumero",
     [](const somme::StatoCondiviso& stato) { return int(stato.Totale); }},
    {somme::forme::kFormTabella, "Numero",
     [](const somme::StatoCondiviso& stato) { return int(stato.RisultatoTabella); }},
});

// Runs on the thread of the program, and waits for it.
template <class Lavoro>
void nelProgramma(Lavoro lavoro) {
  QMetaObject::invokeMethod(qApp, lavoro, Qt::BlockingQueuedConnection);
}

class Misura {
 public:
  explicit Misura(const QString& cartella) : programma_(cartella, {.annunci = &annunci_}) {
    finestra_ = std::uint32_t(ambiente_.fondo.window().winId());
  }

  // Called on a thread of its own.
  void ascoltaComandi() {
    bench::Mano mano(finestra_);
    std::printf("ready\n");
    std::string riga;
    while (std::fflush(stdout) == 0 && std::getline(std::cin, riga) && !riga.empty()) {
      for (const Esercizio& esercizio : kEsercizi) {
        if (esercizio.forma == riga) verdetti(mano, esercizio);
      }
      std::printf("\n");
    }
  }

 private:
  void verdetti(bench::Mano& mano, const Esercizio& esercizio) {
    nelProgramma([&] {
      prova::ComeDalMenu(ambiente_, esercizio.forma);
      ambiente_.fondo.forms().show(esercizio.forma);
    });
    bench::dormi(kApertura);
    for (int i = 0; i < kVerdetti; ++i) {
      const bench::Riquadro conto = prepara(esercizio);
      bench::dormi(kPausa);
      const int giusti = ambiente_.stato.ContaEsatti;
      const double prima = bench::processore();
      const double dopo = mano.premiFinoA(conto);
      std::printf("%.3f %.3f ", dopo, 1000 * (bench::processore() - prima));
      mano.lascia();
      bench::dormi(kPausa);
      int ora = giusti;
      nelProgramma([&] { ora = ambiente_.stato.ContaEsatti; });
      if (ora != giusti + 1) throw std::runtime_error("the answer was not taken for right");
      // On to the next case, from the button that has the focus after a right answer.
      mano.premi();
      bench::dormi(kPausa);
      mano.lascia();
    }
  }

  // Brings the focus to the button of the answer as soon as it takes it; where the count will be
  // seen.
  bench::Riquadro prepara(const Esercizio& esercizio) {
    bench::Riquadro dove{};
    for (int volte = 0; !siPrepara(esercizio, dove); ++volte) {
      if (volte > kVolte) throw std::runtime_error("no case came");
      bench::dormi(kPausa);
    }
    return dove;
  }

  bool siPrepara(const Esercizio& esercizio, bench::Riquadro& dove) {
    bool pronto = false;
    nelProgramma([&] {
      auto& forma = dynamic_cast<somme::FormaEsercizio&>(*ambiente_.fondo.forms().current());
      const QString nome = QStringLiteral("%1(%2)")
                               .arg(QLatin1String(esercizio.numeri))
                               .arg(esercizio.risposta(ambiente_.stato));
      for (platform::Control* controllo : forma.controls()) {
        if (controllo->name() != nome) continue;
        controllo->setFocus();
        pronto = controllo->hasFocus();
      }
      const QWidget& finestra = ambiente_.fondo.window();
      const QWidget& conto = *forma.EtichettaEsatti.widget();
      const double pixel = finestra.devicePixelRatio();
      const QPoint angolo = conto.mapTo(&finestra, QPoint()) * pixel;
      const QSize lato = conto.size() * pixel;
      dove = {angolo.x(), angolo.y(), lato.width(), lato.height()};
    });
    return pronto;
  }

  platform::QtAnnouncer annunci_;
  bench::ProgrammaFermo programma_;
  somme::Ambiente& ambiente_ = programma_.ambiente;
  std::uint32_t finestra_ = 0;
};

}  // namespace

int main(int argc, char* argv[]) {
  return bench::misuraConCartella(argc, argv, [](const QString& cartella) {
    Misura misura(cartella);
    std::thread fuori([&misura] {
      int stato = 0;
      try {
        misura.ascoltaComandi();
      } catch (const std::exception& guasto) {
        std::fprintf(stderr, "bench_domande: %s\n", guasto.what());
        stato = 1;
      }
      std::fflush(stdout);
      std::_Exit(stato);
    });
    return QApplication::exec() == 0;
  });
}
