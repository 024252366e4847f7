#include "blocchi_entro99.h"

#include <QApplication>

#include "support/iscrizione.h"

namespace caso_entro99_test {

using namespace prova;
using namespace prova::entro99;
using somme::FormaBlocchiTastiera;

// The course of a case of longs and units: its result, what comes after it, and what becomes of it
// when the form is left or comes back.
class CasoEntro99Test : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aWrongResultCountsAndStaysToBeCorrected() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    unisci(banco, forma);
    rispondi(banco, forma, QStringLiteral("36"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("36"));
    QVERIFY(forma.ImgNo.isVisible());
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QCOMPARE(banco.suono.suonati.last(), suono(banco, "no"));
    banco.batti(Qt::Key_Backspace);
    banco.scrivi(QStringLiteral("7"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void theRightResultSolvesTheCaseOnce() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    unisci(banco, forma);
    rispondi(banco, forma, QStringLiteral("37"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  1"));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 24 +  13 =  37"));
    QCOMPARE(banco.suono.suonati.size(), 3);
    QVERIFY(forma.TestoInput.isLocked());
    QVERIFY(forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.PulsanteAvanti.hasFocus());
    // A second Enter in the locked box changes nothing.
    forma.TestoInput.setFocus();
    banco.scrivi(QStringLiteral("5"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("37"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QCOMPARE(forma.TestoStampa.text().count(u'='), 1);
  }

  void theBoxTakesTwoDigitsAndNothingElse() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    unisci(banco, forma);
    QVERIFY(forma.TestoInput.widget()->inputMethodHints().testFlag(Qt::ImhDigitsOnly));
    banco.scrivi(QStringLiteral("a -1.2x34"));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("12"));
    banco.batti(Qt::Key_Backspace);
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("1"));
    banco.batti(Qt::Key_Backspace);
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void aResultWithALeadingZeroIsTheNumberThatItMeans() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 4, 3);
    unisci(banco, forma);
    rispondi(banco, forma, QStringLiteral("07"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 4 +  3 =  7"));
  }

  void goingOnBeginsTheNextCaseAndKeepsThePicture() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 27, 15);
    unisci(banco, forma);
    banco.clicca(*forma.PulsanteCambio);
    rispondi(banco, forma, QStringLiteral("42"));
    banco.sorte.scrivi(caso(30, 8));
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 30 +  8 = "));
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QVERIFY(!forma.TestoInput.isVisible());
    QVERIFY(!forma.TestoInput.isLocked());
    QCOMPARE(forma.TestoInput.text(), QString());
    QVERIFY(!forma.ShockwaveFlash3.isVisible());
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("0da 0u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash2, kSpecie), QStringLiteral("0da 0u"));
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("0da 0u"));
    QVERIFY(incorniciata(forma, forma.Label1));
    QCOMPARE(forma.pulsanti.PicturePulsanti.left(), forma.Label1.left());
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral(" 27 +  15 =  42\r\n")));
  }

  void whatIsTypedBeforeTheBoardsOfTheNextCaseAreBuiltGoesNowhere() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    unisci(banco, forma);
    rispondi(banco, forma, QStringLiteral("37"));
    banco.sorte.scrivi(caso(30, 8));
    banco.batti(Qt::Key_Return);
    QVERIFY(!forma.TestoInput.hasFocus());
    banco.scrivi(QStringLiteral("38"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.TestoInput.text(), QString());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    // Enter was for the button with the focus, which is the first of the blocks.
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecie), QStringLiteral("1da 0u"));
    banco.clicca(forma.pulsanti.PulsanteCestino);
    unisci(banco, forma);
    QCOMPARE(forma.TestoInput.text(), QString());
    rispondi(banco, forma, QStringLiteral("38"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(2));
  }

  void aWrongVerdictStaysIntoTheNextCaseToo() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    banco.sorte.scrivi(caso(30, 8));
    banco.riattiva();
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 30 +  8 = "));
    QVERIFY(forma.ImgNo.isVisible());
    QVERIFY(!forma.ImgSi.isVisible());
  }

  void goingOnIsImpossibleBeforeTheRightResult() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    banco.clicca(forma.PulsanteAvanti);
    banco.batti(Qt::Key_V, Qt::AltModifier);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 24 +  13 = "));
    unisci(banco, forma);
    banco.clicca(forma.PulsanteAvanti);
    QVERIFY(forma.ShockwaveFlash3.isVisible());
  }

  void aWholeSumGoesByTheKeyboardAlone() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 11, 9);
    forma.pulsanti.PulsanteDa.setFocus();
    banco.batti(Qt::Key_Space);
    banco.batti(Qt::Key_Tab);
    banco.batti(Qt::Key_Return);
    banco.batti(Qt::Key_Tab);
    banco.batti(Qt::Key_Tab);
    QVERIFY(forma.pulsanti.PulsanteConferma.hasFocus());
    banco.batti(Qt::Key_Return);
    QVERIFY(forma.pulsanti.PulsanteConferma.hasFocus());
    banco.batti(Qt::Key_Backtab, Qt::ShiftModifier);
    banco.batti(Qt::Key_Backtab, Qt::ShiftModifier);
    for (int i = 0; i < 9; ++i) banco.batti(Qt::Key_Space);
    banco.batti(Qt::Key_Tab);
    banco.batti(Qt::Key_Tab);
    banco.batti(Qt::Key_Return);
    QVERIFY(forma.PulsanteCambio->isVisible());
    for (int i = 0; i < 4 && !forma.PulsanteCambio->hasFocus(); ++i) banco.batti(Qt::Key_Tab);
    banco.batti(Qt::Key_Space);
    rispondi(banco, forma, QStringLiteral("20"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(forma.PulsanteAvanti.hasFocus());
  }

  void eachLevelDrawsItsKindOfCaseAndNamesItInTheRecord_data() {
    colonneDeiLivelli();
    livello("1", {{3, 10}, {7, 10}, {2, 3}, {4, 7}}, " 24 +  13 = ", "senza cambio");
    livello("2", {{22, 79}, {22, 32}}, " 27 +  15 = ", "con il cambio");
    livello("3", caso(24, 13), " 24 +  13 = ", "con e senza cambi");
    livello("4", {{23, 98}, {5, 10}}, " 24 +  5 = ", "aggiungi solo unità");
    livello("5", {{23, 88}, {3, 10}}, " 24 +  30 = ", "aggiungi solo decine");
  }
  void eachLevelDrawsItsKindOfCaseAndNamesItInTheRecord() {
    provaLivello<FormaBlocchiTastiera>(somme::forme::kFormLU, "Piatti, lunghi, unità: entro 99");
  }

  void aLevelThatTheTableDoesNotHaveKeepsCaseAndRecord() {
    Banco banco;
    const FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    provaLivelloIgnoto(banco, forma, 6);
  }

  void comingBackStartsANewCaseAndRestartsTheRecord() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    unisci(banco, forma);
    rispondi(banco, forma, QStringLiteral("37"));
    banco.sorte.scrivi(caso(30, 8));
    banco.riattiva();
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 30 +  8 = "));
    QVERIFY(!forma.TestoStampa.text().contains(u'='));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(!forma.ShockwaveFlash3.isVisible());
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("3da 8u"));
  }

  void comingBackInTheMiddleOfAnythingRestartsAtTheFirstBoard_data() {
    QTest::addColumn<bool>("inCambio");
    QTest::addColumn<double>("dopo");
    QTest::newRow("before the boards are joined") << false << 1.0;
    QTest::newRow("at the start of the carry") << true << 0.1;
    QTest::newRow("in the flight of the units") << true << 2.0;
    QTest::newRow("after the movie's word") << true << 3.8;
  }
  void comingBackInTheMiddleOfAnythingRestartsAtTheFirstBoard() {
    QFETCH(bool, inCambio);
    QFETCH(double, dopo);
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 27, 15);
    costruisci(banco, forma, 27);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    costruisci(banco, forma, 15);
    const auto torna = [&] {
      banco.sorte.scrivi(caso(30, 8));
      banco.riattiva();
    };
    if (!inCambio) banco.tempo.after(dopo, torna);
    banco.clicca(forma.pulsanti.PulsanteConferma);
    if (inCambio) {
      banco.tempo.after(dopo, torna);
      banco.clicca(*forma.PulsanteCambio);
    }
    banco.tempo.advance(10);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 30 +  8 = "));
    QVERIFY(forma.ShockwaveFlash1.isVisible());
    QVERIFY(!forma.ShockwaveFlash3.isVisible());
    QVERIFY(!forma.TestoInput.isVisible());
    QVERIFY(!forma.PulsanteCambio->isVisible());
    QVERIFY(incorniciata(forma, forma.Label1));
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("0da 0u"));
    unisci(banco, forma);
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecie), QStringLiteral("3da 8u"));
    rispondi(banco, forma, QStringLiteral("38"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void comingBackWhileTheCarryIsAskedForTakesItsButtonAway() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 27, 15);
    unisci(banco, forma);
    QVERIFY(forma.PulsanteCambio->isVisible());
    banco.sorte.scrivi(caso(30, 8));
    banco.riattiva();
    QVERIFY(!forma.PulsanteCambio->isVisible());
  }

  void leavingInTheMiddleOfAWaitEndsIt_data() {
    QTest::addColumn<bool>("inCambio");
    QTest::newRow("before the boards are joined") << false;
    QTest::newRow("in the carry") << true;
  }
  void leavingInTheMiddleOfAWaitEndsIt() {
    QFETCH(bool, inCambio);
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 27, 15);
    const double prima = adesso(banco);
    const auto esci = [&] { forma.mnuEsci.click(); };
    if (inCambio) unisci(banco, forma);
    const double poi = adesso(banco);
    banco.tempo.after(1, esci);
    if (inCambio) {
      banco.clicca(*forma.PulsanteCambio);
      QVERIFY(adesso(banco) - poi < 1.5);
    } else {
      unisci(banco, forma);
      QVERIFY(adesso(banco) - prima < 1.5);
    }
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenuPLU"));
    banco.tempo.advance(10);
    QVERIFY(!banco.tempo.anyTicker());
    QVERIFY(!banco.fine.stato);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
  }

  void theButtonsDoNothingInTheMiddleOfTheWaits() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 27, 15);
    const QPoint cestino = banco.centro(forma.pulsanti.PulsanteCestino);
    const QPoint conferma = banco.centro(forma.pulsanti.PulsanteConferma);
    int volte = 0;
    const auto premiTutto = [&] {
      ++volte;
      banco.cliccaIn(cestino);
      banco.cliccaIn(conferma);
      banco.clicca(forma.PulsanteAvanti);
      banco.clicca(*forma.PulsanteCambio);
      forma.MenuAzzera.click();
    };
    banco.tempo.after(1, premiTutto);
    unisci(banco, forma);
    banco.tempo.after(1, premiTutto);
    banco.tempo.after(3.5, premiTutto);
    banco.clicca(*forma.PulsanteCambio);
    QCOMPARE(volte, 3);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("da")), 4);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("u"), 11), 2);
    rispondi(banco, forma, QStringLiteral("42"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void thePrintViewOpenedInAWaitLetsTheBoxHaveTheFocusAfterwards() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    banco.tempo.after(1, [&] { forma.mnuStampa.click(); });
    unisci(banco, forma);
    QVERIFY(forma.PictureStampa.isVisible());
    QVERIFY(forma.TestoInput.isVisible());
    QVERIFY(!forma.TestoInput.hasFocus());
    banco.clicca(forma.CommandChiudi);
    QVERIFY(forma.TestoInput.hasFocus());
    rispondi(banco, forma, QStringLiteral("37"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void thePrintViewCoversTheBoards() {
    Banco banco;
    FormaBlocchiTastiera& forma = apri(banco, 24, 13);
    banco.batti(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(forma.PictureStampa.width(), forma.width());
    QCOMPARE(forma.PictureStampa.height(), forma.height());
    const QPoint punto = banco.centro(forma.ShockwaveFlash2);
    QWidget* sotto = banco.ambiente->fondo.window().childAt(punto);
    QVERIFY(sotto != nullptr && sotto != forma.ShockwaveFlash2.widget());
  }
};

const prova::Iscrizione<CasoEntro99Test, QApplication> kIscritta;

}  // namespace caso_entro99_test

#include "caso_entro99_test.moc"
