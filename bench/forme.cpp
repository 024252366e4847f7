#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <cstdio>
#include <vector>

#include "app/shared/ambiente.h"
#include "app/shared/mod_language_support.h"
#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "cartella_in_lingua.h"
#include "exercises/bars/forma_barre_pulsanti.h"
#include "figura.h"
#include "orologio.h"
#include "platform/forms/fonts.h"
#include "platform/forms/keys/key_guard.h"
#include "programma_fermo.h"
#include "support/come_dal_menu.h"
#include "support/nomi_esercizi.h"

// The forms from inside the program, on a real display: how long a form takes to show, against as
// many plain widgets of Qt's with the same texts and fonts, on a page with a ground of its own; and
// how soon a verdict is painted.
namespace {

using platform::Control;
using platform::Form;

const int kTimes = bench::quanti(20, 3);
constexpr double kFotogramma = 16;    // milliseconds from a picture of the screen to the next
constexpr qsizetype kLunga = 64'000;  // bytes of the longest language file that is read whole

class Misura {
 public:
  explicit Misura(const QString& cartella)
      : usuale_(cartella, 0), lunga_(cartella, kLunga), programma_(usuale_.percorso()) {
    QTest::qWait(500);
  }

  // How long a form takes, beside plain widgets; and with a long language file against the usual
  // one.
  void mostra(std::string_view nome) {
    std::vector<double> forma;
    std::vector<double> nudi;
    std::vector<double> lunga;
    // What is compared takes turns; the first turn warms.
    for (int i = 0; i <= kTimes; ++i) {
      const double inLunga = mostraForma(nome, lunga_);
      const double propria = mostraForma(nome, usuale_);
      const double semplice = mostraNudi();
      if (i == 0) continue;
      forma.push_back(propria);
      nudi.push_back(semplice);
      lunga.push_back(inLunga);
    }
    const double a = bench::mediana(forma);
    const double b = bench::mediana(nudi);
    std::printf("showing %.*s (%zu controls): %.2f ms, plain widgets %.2f ms\n", int(nome.size()),
                nome.data(), modello_.size(), a, b);
    bench::stampa({"showing a form", nome, a, "ms", bench::alPiu(kFotogramma)});
    bench::stampa({"showing a form, 64,000 bytes of language", nome, bench::mediana(lunga) / a,
                   "times that without", bench::alPiu(1.5)});
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
      tempi.push_back(bench::millisecondi(orologio));
      QTest::keyRelease(finestra, Qt::Key_Return);
      QTest::keyClick(finestra, Qt::Key_Return);
      QTest::qWait(1);
    }
    std::printf("from the key to the painted verdict: median %.2f ms\n", bench::mediana(tempi));
    bench::stampa({"key to painted verdict, 95 of 100", "", bench::quantile(tempi, 0.95), "ms",
                   bench::alPiu(kFotogramma)});
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
      if (i < kCampione) prime.push_back(bench::millisecondi(orologio));
      if (i >= kRighe - kCampione) ultime.push_back(bench::millisecondi(orologio));
    }
    const double prima = bench::mediana(prime);
    const double ultima = bench::mediana(ultime);
    std::printf("a line of the record: first %.4f ms, of %d the last %.4f ms\n", prima, kRighe,
                ultima);
    bench::stampa(
        {"late line of a long record", "", ultima / prima, "times an early one", bench::alPiu(2)});
  }

  // What the key guard adds to a key that does nothing, told apart: the same taps with it and
  // without.
  void guardia() {
    const double con = tastoSenzaEffetto();
    qApp->removeEventFilter(&ambiente_.fondo.keys());
    const double senza = tastoSenzaEffetto();
    qApp->installEventFilter(&ambiente_.fondo.keys());
    bench::stampa({"key-state machine, of a key", "", con - senza, "ms", bench::alPiu(5)});
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
      tempi.push_back(bench::millisecondi(orologio));
    }
    return bench::mediana(tempi);
  }

  // Milliseconds. What it shows is what mostraNudi() shows after it.
  double mostraForma(std::string_view nome, const bench::CartellaInLingua& cartella) {
    ambiente_.servizi.cartella = cartella.percorso();
    platform::Forms& forme = ambiente_.fondo.forms();
    prova::ComeDalMenu(ambiente_, nome);
    Form* prima = forme.current();
    QElapsedTimer orologio;
    orologio.start();
    forme.show(nome);
    ambiente_.fondo.window().repaint();
    const double tempo = bench::millisecondi(orologio);
    modello_.clear();
    Form* forma = forme.current();
    for (const Control* controllo : forma->controls()) {
      if (controllo->widget() != nullptr) modello_.push_back(descrivi(*controllo));
    }
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

  // As many plain widgets, with the same texts, fonts and places, in the same window. Their page is
  // filled with one colour, so that, as of a form, nothing of what lies below it is painted: how
  // long the splash form takes to paint does not matter.
  double mostraNudi() {
    platform::Window& finestra = ambiente_.fondo.window();
    QElapsedTimer orologio;
    orologio.start();
    auto* pagina = new QWidget(finestra.pages());
    pagina->setAutoFillBackground(true);
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
    const double tempo = bench::millisecondi(orologio);
    delete pagina;
    QTest::qWait(5);
    return tempo;
  }

  bench::CartellaInLingua usuale_;
  bench::CartellaInLingua lunga_;
  bench::ProgrammaFermo programma_;
  somme::Ambiente& ambiente_ = programma_.ambiente;
  std::vector<Descrizione> modello_;
};

}  // namespace

int main(int argc, char* argv[]) {
  return bench::misuraConCartella(argc, argv, [](const QString& cartella) {
    Misura misura(cartella);
    for (const somme::SchedaForma& scheda : somme::LeForme()) {
      // Without a printer a sheet is gone as soon as it is shown; the splash form has been.
      if (scheda.nome != somme::forme::kFormAvvio && !EFoglio(scheda)) misura.mostra(scheda.nome);
    }
    misura.verdetti();
    misura.guardia();
    misura.elenco();
    return true;
  });
}
