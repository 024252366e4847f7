// The forms of the program one after the other, each left at rest for somebody outside to watch:
// over the real clock, printers, sound and sockets, with a stand-in for the touch surface.
//
//   bench_riposo FOLDER-OF-THE-PROGRAM
//
// Takes lines of text: the name of a form and the way of input (0 mouse, 1 manual scanning, 2
// automatic scanning, 3 touch); answers "ready" when the form has been on the screen for a while.
// With an empty line, or none any more, it ends. With --forms it names the forms, a line each.
#include <unistd.h>

#include <QApplication>
#include <QDateTime>
#include <QSocketNotifier>
#include <QTimer>
#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>

#include "app/shared/ambiente.h"
#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "platform/base/paper_codes.h"
#include "platform/devices/linux/sdl_sound.h"
#include "platform/devices/loopback_network.h"
#include "platform/devices/qt_time_source.h"
#include "platform/devices/system_printers.h"
#include "printing/frm_avvia_stampa.h"
#include "programma_fermo.h"
#include "support/come_dal_menu.h"
#include "support/richiesta_del_foglio.h"
#include "tools/tavoletta/tavoletta.h"

namespace {

// Milliseconds from the showing to "ready"; by then a text cursor stands still.
constexpr int kAssestamento = 4000;

// The printers of the machine, with the paper in that every sheet fits on: a sheet that does not
// fit blinks, and that is no rest.
class ConCartaGrande final : public platform::Printers {
 public:
  explicit ConCartaGrande(platform::TimeSource& tempo)
      : vere_(tempo,
              {platform::PdfFolder::usualFolders(), [] { return QDateTime::currentDateTime(); }}) {}

  [[nodiscard]] List list() override { return vere_.list(); }
  [[nodiscard]] Opened open(const QString& nome) override {
    Opened aperta = vere_.open(nome);
    for (const platform::Paper& carta : aperta.traits.papers) {
      if (carta.code == platform::kPaperA3) aperta.traits.standard.paper = carta;
    }
    return aperta;
  }
  [[nodiscard]] platform::PrintResult print(const platform::PrintJob& lavoro) override {
    return vere_.print(lavoro);
  }

 private:
  platform::SystemPrinters vere_;
};

class Riposo {
 public:
  explicit Riposo(const QString& cartella)
      : stampanti_(tempo_),
        programma_(cartella, {.suono = &suono_,
                              .stampanti = &stampanti_,
                              .rete = &rete_,
                              .porta = bench::siMetteInAscolto(tavoletta_)}) {
    QObject::connect(&comandi_, &QSocketNotifier::activated, &comandi_, [this] { leggi(); });
  }

 private:
  void leggi() {
    std::string riga;
    if (!std::getline(std::cin, riga) || riga.empty()) std::_Exit(0);
    std::istringstream parole(riga);
    parole >> nome_ >> modo_;
    // Of a dialog or a sheet first what waits for it must come to its end.
    if (QWidget* dialogo = QApplication::activeModalWidget()) dialogo->close();
    QTimer::singleShot(0, &comandi_, [this] { mostra(); });
    QTimer::singleShot(kAssestamento, &comandi_, [] {
      std::printf("ready\n");
      std::fflush(stdout);
    });
  }

  void mostra() {
    platform::Forms& forme = ambiente_.fondo.forms();
    platform::Form& sotto = *forme.current();
    prova::ComeDalMenu(ambiente_, nome_);
    ambiente_.stato.ModalitaInput = qint16(modo_);
    if (nome_ == somme::forme::kFrmAvviaStampa) {
      sotto.run([&] { stampa(sotto); });
    } else if (EFoglio(somme::SchedaDi(somme::LeForme(), nome_))) {
      sotto.run([&] { forme.show(nome_); });
    } else {
      try {
        forme.pass(sotto, nome_);
      } catch (const platform::Unwind&) {
        std::exit(1);
      }
    }
  }

  void stampa(platform::Form& sotto) {
    auto& dialogo = static_cast<somme::frmAvviaStampa&>(ambiente_.fondo.forms().loaded(nome_));
    const auto viva = dialogo.shared_from_this();
    (void)dialogo.StampaFCPB(prova::richiestaDelFoglio(sotto));
  }

  somme::tavoletta::Tavoletta tavoletta_;
  platform::LoopbackNetwork rete_;
  platform::QtTimeSource tempo_;
  platform::SdlSound suono_{QApplication::beep};
  ConCartaGrande stampanti_;
  bench::ProgrammaFermo programma_;
  somme::Ambiente& ambiente_ = programma_.ambiente;
  QSocketNotifier comandi_{STDIN_FILENO, QSocketNotifier::Read};
  std::string nome_;
  int modo_ = 0;
};

// Each form, a line each: its name, and the ways of input in which it is seen, as the state numbers
// them.
void scriviForme() {
  for (const somme::SchedaForma& scheda : somme::LeForme()) {
    std::printf("%.*s", int(scheda.nome.size()), scheda.nome.data());
    for (const qint16 modo : {somme::kMouseTastiera, somme::kScansioneManuale,
                              somme::kScansioneAutomatica, somme::kHelpiKeys}) {
      if (somme::ModoDi(modo) == scheda.modo) std::printf(" %d", modo);
    }
    std::puts("");
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc == 2 && std::string_view(argv[1]) == "--forms") {
    scriviForme();
    return 0;
  }
  return bench::misuraConCartella(argc, argv, [](const QString& cartella) {
    const Riposo riposo(cartella);
    return QApplication::exec() == 0;
  });
}
