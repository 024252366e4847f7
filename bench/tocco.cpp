// How soon a touch is on the screen: from the stand-in's report, over real TCP, to the painted
// digit.
//
//   bench_tocco FOLDER-OF-THE-PROGRAM
#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <cstdio>
#include <vector>

#include "app/shared/ambiente.h"
#include "app/shared/foglio_tasti.h"
#include "app/shared/nomi_forme.h"
#include "exercises/numbers/forma_numeri_hk.h"
#include "figura.h"
#include "orologio.h"
#include "platform/devices/loopback_network.h"
#include "programma_fermo.h"
#include "support/nomi_esercizi.h"
#include "tools/tavoletta/tavoletta.h"

namespace {

constexpr int kTocchi = 200;
constexpr int kPerduto = 5000;  // milliseconds
constexpr somme::Zona kZero =
    somme::kTastieraCifre.CelleDi(somme::kTastieraCifre.PostoDi(somme::Tasto::Cifra0));

class Tocco {
 public:
  explicit Tocco(const QString& cartella)
      : programma_(cartella, {.rete = &rete_, .porta = bench::siMetteInAscolto(tavoletta_)}) {
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
      tavoletta_.Tocca(kZero.colonne.da, kZero.righe.da);
      while (forma.TestoInput.text().isEmpty()) {
        if (orologio.elapsed() > kPerduto) {
          std::printf("a touch was lost\n");
          return false;
        }
        QCoreApplication::processEvents();
      }
      ambiente_.fondo.window().repaint();
      tempi.push_back(bench::millisecondi(orologio));
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
  bench::ProgrammaFermo programma_;
  somme::Ambiente& ambiente_ = programma_.ambiente;
};

}  // namespace

int main(int argc, char* argv[]) {
  return bench::misuraConCartella(argc, argv,
                                  [](const QString& cartella) { return Tocco(cartella).misura(); });
}
