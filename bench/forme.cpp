#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>
#include <vector>

#include "app/modulo1.h"
#include "app/shared/ambiente.h"
#include "app/shared/mod_language_support.h"
#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "exercises/bars/forma_barre_pulsanti.h"
#include "immagini/immagini.h"
#include "platform/devices/qt_time_source.h"
#include "platform/forms/appearance.h"
#include "platform/forms/fonts.h"
#include "platform/forms/keys/key_guard.h"
#include "schermo.h"
#include "servizi_fermi.h"
#include "support/come_dal_menu.h"

// The forms from inside the program, on a real display: how long a form takes to show, against as
// many plain widgets of Qt's with the same texts and fonts; and how soon a verdict is painted.
namespace {

using platform::Control;
using platform::Form;

constexpr int kTimes = 20;

double millisecondi(const QElapsedTimer& orologio) {
  return static_cast<double>(orologio.nsecsElapsed()) / 1e6;
}

// The program's folder as it is, but for a language file whose length can be changed.
class Cartella {
 public:
  explicit Cartella(const QString& vera) {
    for (const QFileInfo& voce :
         QDir(vera).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
      const QString qui = cartella_.filePath(voce.fileName());
      if (voce.fileName() != kLingua) QFile::link(voce.absoluteFilePath(), qui);
    }
    QFile file(vera + u'/' + kLingua);
    if (!file.open(QIODevice::ReadOnly)) qFatal("no language file");
    corto_ = file.readAll();
    scrivi(corto_);
  }

  [[nodiscard]] QString percorso() const { return cartella_.path(); }

  void scriviCorta() const { scrivi(corto_); }
  // 64,000 bytes, the program's own sections behind those of others.
  void scriviLunga() const {
    QByteArray testo;
    for (int sezione = 0; testo.size() + corto_.size() < 64'000; ++sezione) {
      testo += "[Altro" + QByteArray::number(sezione) + "]\r\n";
      for (int i = 0; i < 20; ++i) {
        testo += "Label" + QByteArray::number(i) + ".Caption=\"Un testo di un'altra forma\"\r\n";
      }
    }
    scrivi(testo.left(64'000 - corto_.size() - 2) + "\r\n" + corto_);
  }

 private:
  static inline const QString kLingua = QStringLiteral("Italiano.lng");

  void scrivi(const QByteArray& testo) const {
    QFile file(cartella_.filePath(kLingua));
    if (!file.open(QIODevice::WriteOnly) || file.write(testo) != testo.size()) {
      qFatal("cannot write the language file");
    }
    file.close();
    // What has just changed is read anew each time; on any day it has not.
    QTest::qWait(200);
  }

  QTemporaryDir cartella_;
  QByteArray corto_;
};

class Misura {
 public:
  explicit Misura(const QString& cartella)
      : cartella_(cartella),
        ambiente_({tempo_, sorte_, suono_, messaggi_, annunci_, documenti_, fine_, istanza_,
                   stampanti_, pagina_, rete_, cartella_.percorso()},
                  somme::LeForme()) {
    somme::Avvia(ambiente_);
    QTest::qWait(500);
  }

  void mostra(std::string_view nome) {
    std::vector<double> forma;
    std::vector<double> nudi;
    std::vector<double> lunga;
    int controlli = 0;
    for (int i = 0; i <= kTimes; ++i) {
      const double proprio = mostraForma(nome, controlli);
      const double semplice = mostraNudi();
      if (i == 0) continue;
      forma.push_back(proprio);
      nudi.push_back(semplice);
    }
    cartella_.scriviLunga();
    for (int i = 0; i <= kTimes; ++i) {
      const double proprio = mostraForma(nome, controlli);
      if (i > 0) lunga.push_back(proprio);
    }
    cartella_.scriviCorta();
    const double a = bench::mediana(forma);
    const double b = bench::mediana(nudi);
    std::printf(
        "showing %.*s (%d controls): %.2f ms, plain widgets %.2f ms: %.2f times (at most 2); "
        "with 64,000 bytes of language %.2f times (1.5)\n",
        static_cast<int>(nome.size()), nome.data(), controlli, a, b, a / b,
        bench::mediana(lunga) / a);
  }

  void verdetti() {
    ambiente_.stato.LimiteEsercizio = 10;
    ambiente_.fondo.forms().show(somme::forme::kFormBarre10);
    QTest::qWait(300);
    auto& forma = *dynamic_cast<somme::FormaBarrePulsanti*>(ambiente_.fondo.forms().current());
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

  // The record of solved cases: what the last of ten thousand lines costs against the first ones,
  // hidden as while answering.
  void elenco() {
    constexpr int kRighe = 10'000;
    constexpr int kCampione = 50;
    ambiente_.fondo.forms().show(somme::forme::kFormBarre10);
    QTest::qWait(300);
    auto& forma = *dynamic_cast<somme::FormaBarrePulsanti*>(ambiente_.fondo.forms().current());
    std::vector<double> prime;
    std::vector<double> ultime;
    for (int i = 0; i < kRighe; ++i) {
      QElapsedTimer orologio;
      orologio.start();
      forma.TestoStampa.append(QStringLiteral(" 3 +  4 =  7\r\n"));
      QCoreApplication::processEvents();
      if (i < kCampione) prime.push_back(millisecondi(orologio));
      if (i >= kRighe - kCampione) ultime.push_back(millisecondi(orologio));
    }
    const double prima = bench::mediana(prime);
    const double ultima = bench::mediana(ultime);
    std::printf("a line of the record: first %.4f ms, of %d the last %.4f ms: %.2f times (2)\n",
                prima, kRighe, ultima, ultima / prima);
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
    prova::ComeDalMenu(ambiente_, nome);
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
    const QPoint alto = widget->mapTo(controllo.home().page(), QPoint());
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

  Cartella cartella_;
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
  bench::ReteSorda rete_;
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
  for (const somme::SchedaForma& scheda : somme::LeForme()) {
    // Without a printer a sheet is gone as soon as it is shown; the splash form has been.
    if (scheda.nome != somme::forme::kFormAvvio && !EFoglio(scheda)) misura.mostra(scheda.nome);
  }
  misura.verdetti();
  misura.guardia();
  misura.elenco();
  std::fflush(stdout);
  std::_Exit(0);
}
