// The carry of the abacus on a real display: how long its two cross-fades take against as many bare
// waits, and how much of one core the program uses meanwhile.
//
//   bench_cambio FOLDER-OF-THE-PROGRAM
#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "app/shared/ambiente.h"
#include "app/shared/modulo_colori_suoni.h"
#include "app/shared/nomi_forme.h"
#include "exercises/abacus/forma_abaco_tastiera.h"
#include "figura.h"
#include "programma_fermo.h"
#include "support/nomi_esercizi.h"

namespace {

constexpr int kAttese = 200;            // of the two cross-fades
constexpr double kAttesa = 0.03;        // seconds
constexpr qint16 kConESenzaCambio = 3;  // a level with the arrow from units to tens

// Seconds of the clock on the wall and of the processor, of all threads of the process.
struct Durata {
  double muro;
  double processore;
};

Durata misura(const std::function<void()>& lavoro) {
  const double prima = bench::processore();
  QElapsedTimer orologio;
  orologio.start();
  lavoro();
  return {static_cast<double>(orologio.nsecsElapsed()) / 1e9, bench::processore() - prima};
}

class Cambio {
 public:
  explicit Cambio(const QString& cartella) : programma_(cartella) {
    ambiente_.stato.TipoEsercizio = kConESenzaCambio;
    ambiente_.fondo.forms().show(somme::forme::kFormAbaco);
    QTest::qWait(500);
  }

  // Whether every carry was made.
  bool confronta() {
    const int nudeAttese = bench::quanti(kAttese, kAttese / 4);
    std::vector<double> rapporti;
    std::vector<double> cambi;
    std::vector<double> nude;
    std::vector<double> quote;
    for (int giro = 0; giro < bench::quanti(5, 1); ++giro) {
      const Durata attese = misura([&] {
        for (int i = 0; i < nudeAttese; ++i) somme::Attendi(ambiente_, kAttesa);
      });
      metti();
      const Durata cambio = misura([this] { forma().PulsanteCambioUDa.click(); });
      nude.push_back(attese.muro * kAttese / nudeAttese);
      cambi.push_back(cambio.muro);
      rapporti.push_back(cambi.back() / nude.back());
      quote.push_back(cambio.processore / cambio.muro);
      if (forma().partita().Inserite().decine != 1) {
        std::printf("the carry was not made\n");
        return false;
      }
    }
    const QSize lato = ambiente_.fondo.window().size();
    std::printf(
        "carry on the abacus, window of %dx%d: %.3f s, %d bare waits %.3f s; %.3f to %.3f times\n",
        lato.width(), lato.height(), bench::mediana(cambi), kAttese, bench::mediana(nude),
        *std::min_element(rapporti.begin(), rapporti.end()),
        *std::max_element(rapporti.begin(), rapporti.end()));
    bench::stampa({"carry on the abacus", "", bench::mediana(rapporti), "times its bare waits",
                   bench::alPiu(1.05)});
    bench::stampa({"processor meanwhile", "", 100 * bench::mediana(quote), "% of one core",
                   bench::sotto(30)});
    return true;
  }

 private:
  somme::FormaAbacoTastiera& forma() {
    return *dynamic_cast<somme::FormaAbacoTastiera*>(ambiente_.fondo.forms().current());
  }
  // Ten units on an otherwise empty abacus, and time for what that paints.
  void metti() {
    forma().EliminaNumeroSW1();
    for (int i = 0; i < somme::PartitaAbaco::kPalline; ++i) {
      forma().InserisciUnita(QStringLiteral("ua%1").arg(i));
    }
    QTest::qWait(200);
  }

  bench::ProgrammaFermo programma_;
  somme::Ambiente& ambiente_ = programma_.ambiente;
};

}  // namespace

int main(int argc, char* argv[]) {
  return bench::misuraConCartella(
      argc, argv, [](const QString& cartella) { return Cambio(cartella).confronta(); });
}
