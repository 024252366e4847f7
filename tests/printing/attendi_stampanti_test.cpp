#include "printing/attendi_stampanti.h"

#include <QApplication>
#include <QLabel>
#include <utility>

#include "app/shared/nomi_forme.h"
#include "exercises/bars/forma_barre_pulsanti.h"
#include "support/banco.h"
#include "support/iscrizione.h"

namespace attendi_stampanti_test {

using prova::Banco;
using somme::FormaBarrePulsanti;

namespace {

FormaBarrePulsanti& apri(Banco& banco) {
  banco.ambiente->stato.LimiteEsercizio = 10;
  return banco.apri<FormaBarrePulsanti>(somme::forme::kFormBarre10);
}

}  // namespace

// A printer that keeps the program waiting.
class AttendiStampantiTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aWaitForThePrinterIsSeenFromHalfASecondOn() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    forma.mnuStampa.click();
    const auto avviso = [&] {
      return banco.ambiente->fondo.window().findChild<QLabel*>(QStringLiteral("WaitSign"));
    };
    bool visto = false;
    bool subito = true;
    QString poi;
    bool clessidra = false;
    QRect dove;
    banco.stampanti.mentreRisponde = [&] {
      if (std::exchange(visto, true)) return;
      subito = avviso()->isVisible();
      clessidra = QApplication::overrideCursor() != nullptr;
      QTest::qWait(700);
      if (!avviso()->isVisible()) return;
      poi = avviso()->text();
      dove = avviso()->geometry();
    };
    banco.clicca(forma.CommandStampa);
    QVERIFY(!subito);
    QVERIFY(clessidra);
    QCOMPARE(poi, QStringLiteral("Attendo la stampante…"));
    QVERIFY(banco.ambiente->fondo.window().rect().contains(dove));
    QVERIFY(dove.width() > 200 && dove.height() > 40);
    // It goes with the wait.
    QVERIFY(avviso() == nullptr);
    QVERIFY(QApplication::overrideCursor() == nullptr);
    QCOMPARE(banco.stampanti.lavori.size(), size_t(1));
  }

  void theWindowMayBeClosedWhileThePrinterIsWaitedFor() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    forma.mnuStampa.click();
    banco.stampanti.mentreRisponde = [&] { banco.ambiente->fondo.window().close(); };
    banco.clicca(forma.CommandStampa);
    QCOMPARE(banco.fine.stato, std::optional(0));
    QVERIFY(banco.stampanti.lavori.empty());
  }

  void whileAPrinterKeepsTheProgramWaitingNoClickAndNoKeyGetsThrough() {
    Banco banco;
    FormaBarrePulsanti& forma = apri(banco);
    forma.mnuStampa.click();
    bool provato = false;
    banco.stampanti.mentreRisponde = [&] {
      if (std::exchange(provato, true)) return;
      banco.clicca(forma.CommandStampa);
      banco.clicca(forma.CommandChiudi);
      banco.batti(Qt::Key_Return);
    };
    banco.clicca(forma.CommandStampa);
    QCOMPARE(banco.stampanti.lavori.size(), size_t(1));
    QVERIFY(forma.PictureStampa.isVisible());
    banco.clicca(forma.CommandChiudi);
    QVERIFY(!forma.PictureStampa.isVisible());
  }
};

const prova::Iscrizione<AttendiStampantiTest, QApplication> kIscritta;

}  // namespace attendi_stampanti_test

#include "attendi_stampanti_test.moc"
