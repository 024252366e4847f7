#include "printing/frm_avvia_stampa.h"

#include <QApplication>
#include <QClipboard>

#include "dialogo_di_prova.h"
#include "support/iscrizione.h"

namespace campo_millimetri_test {

using prova::DialogoDiProva;
using somme::frmAvviaStampa;

// The fields of the print dialog: what they take, and what follows a change of them.
class CampoMillimetriTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anEntryBeyondTheLimitsIsPutBackToThem() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      d.Command1.click();
      prova.scrivi(d.txtPrW, QStringLiteral("2500"));
      QCOMPARE(d.txtPrW.text(), QStringLiteral("2000"));
      prova.scrivi(d.txtPrW, QStringLiteral("0"));
      QCOMPARE(d.txtPrW.text(), QStringLiteral("1"));
      QCOMPARE(d.posto().larghezza, 1);
      prova.scrivi(d.txtPrX, QStringLiteral("-2500"));
      QCOMPARE(d.txtPrX.text(), QStringLiteral("-2000"));
      prova.scrivi(d.txtPrY, QStringLiteral("9999"));
      QCOMPARE(d.txtPrY.text(), QStringLiteral("2000"));
      d.txtPrY.setText(QStringLiteral("abc"));
      QCOMPARE(d.posto().alto, 0);
    });
    QVERIFY(prova.visto);
  }

  void aMinusIsTakenOnlyAtTheStartOfAMargin() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      d.Command1.click();
      prova.scrivi(d.txtPrX, QStringLiteral("1-2"));
      QCOMPARE(d.txtPrX.text(), QStringLiteral("12"));
      prova.batti(Qt::Key_Home);
      QTest::keyClick(prova.finestra(), '-');
      QCOMPARE(d.txtPrX.text(), QStringLiteral("-12"));
      prova.batti(Qt::Key_Home);
      QTest::keyClick(prova.finestra(), '-');
      QCOMPARE(d.txtPrX.text(), QStringLiteral("-12"));
      // With the whole text selected it takes its place.
      prova.scrivi(d.txtPrX, QStringLiteral("-"));
      QCOMPARE(d.txtPrX.text(), QStringLiteral("-"));
      QCOMPARE(d.posto().sinistra, 0);
    });
    QVERIFY(prova.visto);
  }

  void whatIsPastedIsTakenAsIfItWereTyped_data() {
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("taken");
    QTest::newRow("a minus in the middle") << QStringLiteral("1-2-3") << QStringLiteral("123");
    QTest::newRow("two at the start") << QStringLiteral("--5") << QStringLiteral("-5");
    QTest::newRow("one behind what is dropped") << QStringLiteral("a-7") << QStringLiteral("-7");
  }
  void whatIsPastedIsTakenAsIfItWereTyped() {
    QFETCH(QString, pasted);
    QFETCH(QString, taken);
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      d.Command1.click();
      prova.scrivi(d.txtPrX, QStringLiteral("44"));
      static_cast<QLineEdit*>(d.txtPrX.widget())->selectAll();
      QApplication::clipboard()->setText(pasted);
      prova.batti(Qt::Key_V, Qt::ControlModifier);
      QCOMPARE(d.txtPrX.text(), taken);
      QCOMPARE(d.posto().sinistra, taken.toInt());
    });
    QVERIFY(prova.visto);
  }

  void aSizeNeverTakesAMinusAndNoFieldTakesLetters() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      d.Command1.click();
      prova.scrivi(d.txtPrW, QStringLiteral("-3a5.,"));
      QCOMPARE(d.txtPrW.text(), QStringLiteral("35"));
      prova.scrivi(d.txtPrY, QStringLiteral("x-4y"));
      QCOMPARE(d.txtPrY.text(), QStringLiteral("-4"));
      prova.batti(Qt::Key_Backspace);
      QCOMPARE(d.txtPrY.text(), QStringLiteral("-"));
    });
    QVERIFY(prova.visto);
  }

  void onScreenKeyboardsAreToldWhatEachFieldTakes() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [](frmAvviaStampa& d) {
      for (const platform::TextBox* misura : {&d.txtPrW, &d.txtPrH}) {
        QCOMPARE(misura->widget()->inputMethodHints(), Qt::ImhDigitsOnly);
      }
      // With a minus.
      for (const platform::TextBox* margine : {&d.txtPrX, &d.txtPrY}) {
        QCOMPARE(margine->widget()->inputMethodHints(), Qt::ImhFormattedNumbersOnly);
      }
    });
    QVERIFY(prova.visto);
  }

  void withAnAspectOf2AWidthOf100GivesAHeightOf50() {
    DialogoDiProva prova;
    auto r = prova.richiesta();
    r.larghezza = 400;
    r.altezza = 200;
    prova.apri(r, [&](frmAvviaStampa& d) {
      d.Command1.click();
      prova.scrivi(d.txtPrW, QStringLiteral("100"));
      QCOMPARE(d.txtPrH.text(), QStringLiteral("50"));
      QCOMPARE(d.posto().altezza, 50);
      prova.scrivi(d.txtPrH, QStringLiteral("60"));
      QCOMPARE(d.txtPrW.text(), QStringLiteral("120"));
      prova.clicca(d.chkProporzioni);
      QVERIFY(!d.chkProporzioni.isChecked());
      prova.scrivi(d.txtPrW, QStringLiteral("300"));
      QCOMPARE(d.txtPrH.text(), QStringLiteral("60"));
      // Ticked again, the height follows the width.
      prova.clicca(d.chkProporzioni);
      QCOMPARE(d.txtPrH.text(), QStringLiteral("150"));
    });
    QVERIFY(prova.visto);
  }

  void theSpinnersChangeTheirFieldsByOneAndKeepTheProportion() {
    DialogoDiProva prova;
    auto r = prova.richiesta();
    r.larghezza = 400;
    r.altezza = 200;
    prova.apri(r, [&](frmAvviaStampa& d) {
      d.Command1.click();
      d.updPrW.step(1);
      QCOMPARE(d.txtPrW.text(), QStringLiteral("401"));
      QCOMPARE(d.txtPrH.text(), QStringLiteral("200"));
      d.updPrH.step(-1);
      QCOMPARE(d.txtPrH.text(), QStringLiteral("199"));
      QCOMPARE(d.txtPrW.text(), QStringLiteral("398"));
      d.updPrX.step(-1);
      QCOMPARE(d.posto().sinistra, -1);
      d.updPrY.step(1);
      QCOMPARE(d.posto().alto, 1);
      // By mouse on the right half, and by the arrow keys in the box.
      const QWidget* freccia = d.updPrY.widget();
      const QPoint destra = freccia->mapTo(freccia->window(),
                                           QPoint(freccia->width() * 3 / 4, freccia->height() / 2));
      QTest::mouseClick(prova.finestra(), Qt::LeftButton, {}, destra);
      QCOMPARE(d.txtPrY.text(), QStringLiteral("2"));
      d.txtPrY.setFocus();
      prova.batti(Qt::Key_Down);
      QCOMPARE(d.txtPrY.text(), QStringLiteral("1"));
      d.txtPrY.setText(QStringLiteral("2000"));
      d.updPrY.step(1);
      QCOMPARE(d.txtPrY.text(), QStringLiteral("2000"));
    });
    QVERIFY(prova.visto);
  }

  void aHeldArrowGoesOn() {
    DialogoDiProva prova;
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      d.Command1.click();
      const QWidget* freccia = d.updPrX.widget();
      const QPoint destra = freccia->mapTo(freccia->window(),
                                           QPoint(freccia->width() * 3 / 4, freccia->height() / 2));
      QTest::mousePress(prova.finestra(), Qt::LeftButton, {}, destra);
      prova.banco.tempo.advance(0.71);
      QTest::mouseRelease(prova.finestra(), Qt::LeftButton, {}, destra);
      QCOMPARE(d.txtPrX.text(), QStringLiteral("4"));
      prova.banco.tempo.advance(1);
      QCOMPARE(d.txtPrX.text(), QStringLiteral("4"));
    });
    QVERIFY(prova.visto);
  }

  void reimpostaPutsBothMarginsToZero() {
    DialogoDiProva prova;
    auto r = prova.richiesta();
    r.sinistra = 12;
    r.alto = -3;
    prova.apri(r, [&](frmAvviaStampa& d) {
      d.Command1.click();
      prova.clicca(d.cmdOrigine);
      QCOMPARE(d.txtPrX.text(), QStringLiteral("0"));
      QCOMPARE(d.posto().alto, 0);
    });
    QVERIFY(prova.visto);
  }

  void pickingA3TakesEffectOnlyAfterA4() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      prova.clicca(d.A3[0]);
      QCOMPARE(d.txtPrW.text(), QStringLiteral("400"));
      prova.clicca(d.A3[1]);
      QCOMPARE(d.txtPrW.text(), QStringLiteral("289"));
      QCOMPARE(d.txtPrH.text(), QStringLiteral("204"));
      QVERIFY(d.Label2.isVisible());
      prova.clicca(d.A3[0]);
      QCOMPARE(d.txtPrW.text(), QStringLiteral("420"));
      QCOMPARE(d.txtPrH.text(), QStringLiteral("297"));
      QCOMPARE(d.posto().larghezza, 420);
      QVERIFY(!d.Label2.isVisible());
      QVERIFY(!d.lblFuoriFoglio.isVisible());
    });
    QVERIFY(prova.visto);
  }
};

const prova::Iscrizione<CampoMillimetriTest, QApplication> kIscritta;

}  // namespace campo_millimetri_test

#include "campo_millimetri_test.moc"
