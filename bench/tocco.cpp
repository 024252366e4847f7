// How soon a touch is on the screen: from the stand-in's report, over real TCP, to the painted
// digit.
//
//   bench_tocco FOLDER-OF-THE-PROGRAM
#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTest>
#include <cstdio>
#include <vector>

#include "app/modulo1.h"
#include "app/shared/ambiente.h"
#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "exercises/numbers/forma_numeri_hk.h"
#include "figura.h"
#include "immagini/immagini.h"
#include "platform/devices/loopback_network.h"
#include "platform/devices/qt_time_source.h"
#include "platform/forms/appearance.h"
#include "servizi_fermi.h"
#include "tools/tavoletta/tavoletta.h"

namespace {

constexpr int kTocchi = 200;
constexpr int kPerduto = 5000;  // milliseconds

class Tocco {
 public:
  explicit Tocco(const QString& cartella)
      : ambiente_({tempo_, sorte_, suono_, messaggi_, annunci_, documenti_, fine_, istanza_,
                   stampanti_, pagina_, rete_, cartella},
                  somme::LeForme()) {
    if (!tavoletta_.Ascolta(0)) std::exit(1);
    ambiente_.servizi.porta = tavoletta_.Porta();
    somme::Avvia(ambiente_);
    ambiente_.stato.TipoEsercizio = 1;
    ambiente_.fondo.forms().show(somme::forme::kFormNumeriTotaleHK);
    QTest::qWait(500);
  }

  bool misura() {
    auto& forma = *dynamic_cast<somme::FormaNumeriHK*>(ambiente_.fondo.forms().current());
    std::vector<double> tempi;
    for (int i = 0; i < kTocchi; ++i) {
      forma.TestoInput.setText({});
      QTest::qWait(2);
      QElapsedTimer orologio;
      orologio.start();
      tavoletta_.Tocca(2, 2);
      while (forma.TestoInput.text().isEmpty()) {
        if (orologio.elapsed() > kPerduto) {
          std::printf("a touch was lost\n");
          return false;
        }
        QCoreApplication::processEvents();
      }
      ambiente_.fondo.window().repaint();
      tempi.push_back(static_cast<double>(orologio.nsecsElapsed()) / 1e6);
    }
    std::printf("from the report of a touch to the painted digit: median %.2f ms\n",
                bench::mediana(tempi));
    bench::stampa({"touch to painted digit, 95 of 100", "", bench::quantile(tempi, 0.95), "ms",
                   bench::alPiu(16)});
    return true;
  }

 private:
  somme::tavoletta::Tavoletta tavoletta_;
  platform::LoopbackNetwork rete_;
  platform::QtTimeSource tempo_;
  platform::SeededChance sorte_{1};
  bench::Muto suono_;
  bench::Zitto messaggi_;
  bench::Tacito annunci_;
  bench::Chiuso documenti_;
  bench::Uscita fine_;
  bench::Solo istanza_;
  bench::SenzaStampanti stampanti_;
  bench::SenzaPagina pagina_;
  somme::Ambiente ambiente_;
};

}  // namespace

int main(int argc, char* argv[]) {
  QApplication programma(argc, argv);
  platform::applyAppearance();
  somme::PreparaImmagini();
  if (argc != 2) {
    std::fprintf(stderr, "usage: bench_tocco FOLDER-OF-THE-PROGRAM\n");
    return 2;
  }
  Tocco tocco(QFileInfo(QString::fromLocal8Bit(argv[1])).absoluteFilePath());
  const bool tutti = tocco.misura();
  std::fflush(stdout);
  std::_Exit(tutti ? 0 : 1);
}
