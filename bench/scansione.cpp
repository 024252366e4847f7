// Automatic scanning on a real display: how even its steps are, idle and with every core busy.
//
//   bench_scansione FOLDER-OF-THE-PROGRAM
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "app/shared/ambiente.h"
#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "exercises/numbers/forma_numeri_scansione.h"
#include "figura.h"
#include "orologio.h"
#include "platform/forms/controls/ring_widget.h"
#include "programma_fermo.h"
#include "support/nomi_esercizi.h"

namespace {

constexpr double kIntervallo = 1000;  // milliseconds

// Processes that keep every core busy while one lives.
class Carico {
 public:
  Carico() {
    const unsigned quanti = std::max(1U, std::thread::hardware_concurrency());
    const pid_t genitore = getpid();
    for (unsigned i = 0; i < quanti; ++i) {
      const pid_t figlio = fork();
      if (figlio == 0) {
        // Until nobody needs it.
        while (getppid() == genitore) {
        }
        _exit(0);
      }
      figli_.push_back(figlio);
    }
  }
  ~Carico() {
    for (const pid_t figlio : figli_) {
      kill(figlio, SIGKILL);
      waitpid(figlio, nullptr, 0);
    }
  }
  Carico(const Carico&) = delete;
  Carico& operator=(const Carico&) = delete;

 private:
  std::vector<pid_t> figli_;
};

// When the ring is painted, in milliseconds: once for each step.
class Occhio final : public QObject {
 public:
  Occhio() { orologio_.start(); }
  bool eventFilter(QObject* osservato, QEvent* evento) override {
    if (evento->type() == QEvent::Move) spostato_ = true;
    if (evento->type() == QEvent::Paint && spostato_) {
      spostato_ = false;
      passi.push_back(bench::millisecondi(orologio_));
    }
    return QObject::eventFilter(osservato, evento);
  }
  std::vector<double> passi;

 private:
  QElapsedTimer orologio_;
  bool spostato_ = false;
};

class Scansione {
 public:
  explicit Scansione(const QString& cartella) : programma_(cartella) {
    ambiente_.stato.TipoEsercizio = 1;
  }

  void mostra() {
    ambiente_.stato.ModalitaInput = somme::kScansioneAutomatica;
    ambiente_.fondo.forms().show(somme::forme::kFormMenuNumeri);
    ambiente_.stato.TipoEsercizio = 1;
    ambiente_.fondo.forms().show(somme::forme::kFormNumeriTotaleScansione);
    QTest::qWait(1500);
  }

  void passo(const std::string& come, bench::Limite limite) {
    auto& forma = *dynamic_cast<somme::FormaNumeriScansione*>(ambiente_.fondo.forms().current());
    auto* anello = forma.TastieraNumericaScansione1.widget()->findChild<platform::RingWidget*>();
    Occhio occhio;
    anello->installEventFilter(&occhio);
    const int passi = bench::quanti(100, 8);
    while (int(occhio.passi.size()) <= passi) QTest::qWait(200);
    anello->removeEventFilter(&occhio);
    double peggiore = 0;
    for (int i = 0; i < passi; ++i) {
      const double intervallo = occhio.passi[i + 1] - occhio.passi[i];
      peggiore = std::max(peggiore, std::abs(intervallo - kIntervallo));
    }
    const double media = (occhio.passi[passi] - occhio.passi[0]) / passi;
    std::printf("automatic scanning at 1.00 s, %s: %d steps, mean %.2f ms\n", come.c_str(), passi,
                media);
    bench::stampa({"mean step of scanning, " + come, "",
                   100 * std::abs(media - kIntervallo) / kIntervallo, "% off", bench::alPiu(0.5)});
    bench::stampa({"worst step of scanning, " + come, "", peggiore, "ms off", limite});
  }

 private:
  bench::ProgrammaFermo programma_;
  somme::Ambiente& ambiente_ = programma_.ambiente;
};

}  // namespace

int main(int argc, char* argv[]) {
  return bench::misuraConCartella(argc, argv, [](const QString& cartella) {
    Scansione scansione(cartella);
    scansione.mostra();
    scansione.passo("idle", bench::alPiu(15));
    const Carico carico;
    scansione.passo("every core busy", bench::alPiu(60));
    return true;
  });
}
