#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <cstdio>
#include <vector>

#include "app/modulo1.h"
#include "app/shared/ambiente.h"
#include "app/shared/mod_language_support.h"
#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "exercises/bars/form_barre10.h"
#include "immagini/immagini.h"
#include "platform/devices/qt_time_source.h"
#include "platform/forms/appearance.h"
#include "platform/forms/fonts.h"
#include "platform/forms/keys/key_guard.h"
#include "schermo.h"

// The forms from inside the program, on a real display: how long a form takes to show, against as
// many plain widgets of Qt's with the same texts and fonts; and how soon a verdict is painted.
namespace {

using platform::Control;
using platform::Form;

constexpr int kTimes = 20;

struct Muto final : platform::Sound {
  void play(const QString& /*path*/) override {}
};
struct Chiuso final : platform::Documents {
  void open(const QString& /*path*/) override {}
};
struct Uscita final : platform::ProcessEnd {
  void end(int status) override { std::exit(status); }
};
struct Solo final : platform::InstanceLock {
  [[nodiscard]] bool take() override { return true; }
};
struct SenzaStampanti final : platform::Printers {
  [[nodiscard]] List list() override { return {}; }
  [[nodiscard]] Opened open(const QString& /*name*/) override { return {}; }
  [[nodiscard]] platform::PrintResult print(const platform::PrintJob& /*job*/) override {
    return {};
  }
};
struct SenzaPagina final : platform::PageSetup {
  [[nodiscard]] bool choose(const QString& /*printer*/, const platform::PrinterTraits& /*traits*/,
                            platform::PrinterSettings& /*settings*/) override {
    return false;
  }
};
struct Zitto final : platform::MessageBoxes {
  platform::BoxAnswer show(const platform::MessageBox& /*box*/) override {
    return platform::BoxAnswer::Ok;
  }
};

double millisecondi(const QElapsedTimer& orologio) {
  return static_cast<double>(orologio.nsecsElapsed()) / 1e6;
}

class Misura {
 public:
  explicit Misura(const QString& cartella)
      : ambiente_({tempo_, sorte_, suono_, messaggi_, documenti_, fine_, istanza_, stampanti_,
                   pagina_, cartella},
                  [this](std::string_view nome) { return somme::CreaForma(ambiente_, nome); }) {
    somme::Avvia(ambiente_);
    QTest::qWait(500);
  }

  void mostra(std::string_view nome) {
    std::vector<double> forma;
    std::vector<double> nudi;
    int controlli = 0;
    for (int i = 0; i <= kTimes; ++i) {
      const double proprio = mostraForma(nome, controlli);
      const double semplice = mostraNudi();
      if (i == 0) continue;
      forma.push_back(proprio);
      nudi.push_back(semplice);
    }
    const double a = bench::mediana(forma);
    const double b = bench::mediana(nudi);
    std::printf(
        "showing %.*s (%d controls): %.2f ms, plain widgets %.2f ms: %.2f times (at most 2)\n",
        static_cast<int>(nome.size()), nome.data(), controlli, a, b, a / b);
  }

  void verdetti() {
    ambiente_.stato.LimiteEsercizio = 10;
    ambiente_.fondo.forms().show(somme::forme::kFormBarre10);
    QTest::qWait(300);
    auto& forma = *dynamic_cast<somme::FormBarre10*>(ambiente_.fondo.forms().current());
    QWindow* finestra = ambiente_.fondo.window().windowHandle();
    std::vector<double> tempi;
    for (int i = 0; i < 200; ++i) {
      const int giusto = ambiente_.stato.Totale;
      forma.PulsanteNumero[giusto].setFocus();
      QTest::qWait(1);
      QElapsedTimer orologio;
      orologio.start();
      QTest::keyPress(finestra, Qt::Key_Return);
      ambiente_.fondo.window().repaint();
      tempi.push_back(millisecondi(orologio));
      QTest::keyRelease(finestra, Qt::Key_Return);
      QTest::keyClick(finestra, Qt::Key_Return);
      QTest::qWait(1);
    }
    std::sort(tempi.begin(), tempi.end());
    std::printf(
        "from the key to the painted verdict: median %.2f ms, 95 of 100 within %.2f ms (16)\n",
        tempi[tempi.size() / 2], tempi[tempi.size() * 95 / 100]);
  }

  // What the key guard adds to a key that does nothing, told apart: the same taps with it and
  // without.
  void guardia() {
    const double con = tastoSenzaEffetto();
    qApp->removeEventFilter(&ambiente_.fondo.keys());
    const double senza = tastoSenzaEffetto();
    qApp->installEventFilter(&ambiente_.fondo.keys());
    std::printf("the key-state machine adds %.3f ms to a key (at most 5)\n", con - senza);
  }

 private:
  double tastoSenzaEffetto() {
    QWindow* finestra = ambiente_.fondo.window().windowHandle();
    std::vector<double> tempi;
    for (int i = 0; i < 500; ++i) {
      QElapsedTimer orologio;
      orologio.start();
      QTest::keyPress(finestra, Qt::Key_X);
      QTest::keyRelease(finestra, Qt::Key_X);
      tempi.push_back(millisecondi(orologio));
    }
    return bench::mediana(tempi);
  }

  double mostraForma(std::string_view nome, int& controlli) {
    platform::Forms& forme = ambiente_.fondo.forms();
    ambiente_.stato.LimiteEsercizio = 10;
    ambiente_.stato.TipoEsercizio = 1;
    Form* prima = forme.current();
    QElapsedTimer orologio;
    orologio.start();
    forme.show(nome);
    ambiente_.fondo.window().repaint();
    const double tempo = millisecondi(orologio);
    modello_.clear();
    Form* forma = forme.current();
    for (const Control* controllo : forma->controls()) {
      if (controllo->widget() != nullptr) modello_.push_back(descrivi(*controllo));
    }
    controlli = static_cast<int>(modello_.size());
    forme.unload(*prima);
    forme.show(somme::forme::kFormAvvio);
    forme.unload(*forma);
    QTest::qWait(5);
    return tempo;
  }

  struct Descrizione {
    bool bottone;
    QString testo;
    QFont carattere;
    QRect posto;
    bool visibile;
  };

  static Descrizione descrivi(const Control& controllo) {
    const QWidget* widget = controllo.widget();
    const QPoint alto = widget->mapTo(controllo.form().page(), QPoint());
    return {dynamic_cast<const platform::Button*>(&controllo) != nullptr, controllo.caption(),
            widget->font(), QRect(alto, widget->size()), controllo.isVisible()};
  }

  // As many plain widgets, with the same texts, fonts and places, in the same window.
  double mostraNudi() {
    platform::Window& finestra = ambiente_.fondo.window();
    QElapsedTimer orologio;
    orologio.start();
    auto* pagina = new QWidget(finestra.pages());
    for (const Descrizione& d : modello_) {
      QWidget* widget = nullptr;
      if (d.bottone) {
        widget = new QPushButton(d.testo, pagina);
      } else {
        widget = new QLabel(d.testo, pagina);
      }
      widget->setFont(d.carattere);
      widget->setGeometry(d.posto);
      widget->setVisible(d.visibile);
    }
    pagina->resize(finestra.pages()->size());
    pagina->show();
    pagina->raise();
    finestra.repaint();
    const double tempo = millisecondi(orologio);
    delete pagina;
    QTest::qWait(5);
    return tempo;
  }

  platform::QtTimeSource tempo_;
  platform::SeededChance sorte_{1};
  Muto suono_;
  Zitto messaggi_;
  Chiuso documenti_;
  Uscita fine_;
  Solo istanza_;
  SenzaStampanti stampanti_;
  SenzaPagina pagina_;
  somme::Ambiente ambiente_;
  std::vector<Descrizione> modello_;
};

}  // namespace

int main(int argc, char* argv[]) {
  QApplication programma(argc, argv);
  platform::applyAppearance();
  somme::PreparaImmagini();
  if (argc != 2) {
    std::fprintf(stderr, "usage: forme FOLDER-OF-THE-PROGRAM\n");
    return 2;
  }
  Misura misura(QFileInfo(QString::fromLocal8Bit(argv[1])).absoluteFilePath());
  for (const std::string_view nome : somme::NomiDelleForme()) {
    if (nome != somme::forme::kFormAvvio) misura.mostra(nome);
  }
  misura.verdetti();
  misura.guardia();
  std::fflush(stdout);
  std::_Exit(0);
}
