#include <malloc.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <cstdio>
#include <exception>
#include <fstream>
#include <string>

#include "app/shared/nomi_forme.h"
#include "exercises/bars/forma_barre_pulsanti.h"
#include "figura.h"
#include "orologio.h"
#include "platform/base/twips.h"
#include "printing/frm_avvia_stampa.h"
#include "printing/modulo_stampa.h"
#include "support/banco.h"
#include "support/richiesta_del_foglio.h"

// Printing: how the time and the memory of a record grow with its lines, and how soon the preview
// follows a change of a field. It needs a display.
//
//   bench_stampa
namespace {

constexpr int kPochi = 1000;
constexpr int kMolti = 10000;
constexpr double kFotogramma = 1000.0 / 60;  // milliseconds
constexpr int kMargine = int(platform::Twips::inches(1).count());

QString righe(int quante) {
  QString testo;
  for (int i = 0; i < quante; ++i) testo += QStringLiteral("     %1 +  4 =  7\r\n").arg(i, 5);
  return testo;
}

// Kilobytes: VmHWM is the most that was ever in memory, VmRSS what is there now.
long memoria(const char* voce) {
  std::ifstream file("/proc/self/status");
  std::string parola;
  while (file >> parola) {
    if (parola == voce) {
      long kilobyte = 0;
      file >> kilobyte;
      return kilobyte;
    }
  }
  return 0;
}

void azzeraMassimo() {
  std::ofstream("/proc/self/clear_refs") << "5";
}

class Misura {
 public:
  Misura() : forma_(banco_.apri<somme::FormaBarrePulsanti>(somme::forme::kFormBarre10)) {}

  // Free memory of the process is given back first: used again, it would not be seen.
  void memoriaDiUnElenco() {
    prepara(kPochi);
    stampa();  // loads the fonts
    prepara(kMolti);
    ::malloc_trim(0);
    const long prima = memoria("VmRSS:");
    azzeraMassimo();
    stampa();
    const long dopo = memoria("VmHWM:");
    bench::stampa({"memory of printing a record", "", double(dopo - prima) / kMolti, "KB a line",
                   bench::alPiu(1)});
  }

  void tempoDiUnElenco() {
    const double pochi = tempo(kPochi);
    const double molti = tempo(kMolti);
    std::printf("record of %d lines: %.0f ms; of %d lines: %.0f ms\n", kPochi, pochi, kMolti,
                molti);
    bench::stampa(
        {"printing ten times as many lines", "", molti / pochi, "times as long", bench::alPiu(12)});
  }

  void anteprima() {
    banco_.ambiente->fondo.window().showNormal();
    auto& dialogo = static_cast<somme::frmAvviaStampa&>(
        banco_.ambiente->fondo.forms().loaded(somme::forme::kFrmAvviaStampa));
    const somme::frmAvviaStampa::Richiesta richiesta = prova::richiestaDelFoglio(forma_);
    banco_.tempo.after(0.1, [&] {
      std::vector<double> tempi;
      dialogo.Command1.click();
      QTest::qWait(200);
      for (int i = 0; i < 100; ++i) {
        QElapsedTimer orologio;
        orologio.start();
        dialogo.updPrX.step(i % 2 == 0 ? 1 : -1);
        dialogo.PictureAnteprima.widget()->repaint();
        tempi.push_back(bench::millisecondi(orologio));
        QCoreApplication::processEvents();
      }
      std::printf("preview after a change of a field: median %.2f ms, slowest %.2f ms\n",
                  bench::mediana(tempi), bench::quantile(tempi, 1));
      bench::stampa({"preview after a field, 95 of 100", "", bench::quantile(tempi, 0.95), "ms",
                     bench::alPiu(kFotogramma)});
      dialogo.cmdChiudi.click();
    });
    forma_.run([&] { (void)dialogo.StampaFCPB(richiesta); });
  }

 private:
  void prepara(int quante) {
    forma_.TestoStampa.setText(righe(quante));
    banco_.stampanti.lavori.clear();
    banco_.stampanti.lavori.shrink_to_fit();
  }

  void stampa() {
    somme::StampaTestoRicco(*banco_.ambiente, forma_.TestoStampa, kMargine, kMargine, kMargine,
                            kMargine);
  }

  double tempo(int quante) {
    std::vector<double> tempi;
    for (int i = 0; i < bench::quanti(5, 3); ++i) {
      prepara(quante);
      QElapsedTimer orologio;
      orologio.start();
      stampa();
      tempi.push_back(bench::millisecondi(orologio));
    }
    return bench::mediana(tempi);
  }

  prova::Banco banco_;
  somme::FormaBarrePulsanti& forma_;
};

}  // namespace

int main(int argc, char* argv[]) {
  QApplication programma(argc, argv);
  try {
    Misura misura;
    misura.memoriaDiUnElenco();
    misura.tempoDiUnElenco();
    misura.anteprima();
  } catch (const std::exception& perche) {
    std::fprintf(stderr, "stampa: %s\n", perche.what());
    return 1;
  }
  return 0;
}
