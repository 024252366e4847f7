#include "exercises/numbers/forma_numeri_tastiera.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

#include "app/shared/nomi_forme.h"
#include "cases/modulo_somme.h"
#include "numeri_di_prova.h"
#include "support/iscrizione.h"
#include "support/risposta_scritta.h"

namespace forma_numeri_tastiera_test {

using prova::Banco;
using prova::kTrePiuQuattro;
using prova::rispondiScrivendo;
using somme::FormaNumeriTastiera;

namespace {

FormaNumeriTastiera& apri(Banco& banco, qint16 tipo,
                          const std::vector<prova::SorteDiProva::Estrazione>& estrazioni) {
  return prova::apriNumeri<FormaNumeriTastiera>(banco, somme::forme::kFormNumeriTotale, tipo,
                                                "Solo numeri. Entro 10: somme", estrazioni);
}

}  // namespace

// The number exercise with the sum to find, as a pupil uses it.
class FormaNumeriTastieraTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itOpensWithAQuestionAndAnEmptyBoxThatHasTheFocus() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 3 +  4 = "));
    QVERIFY(forma.TestoInput.isVisible());
    QVERIFY(!forma.TestoInputInvisibile.isVisible());
    QVERIFY(forma.TestoInput.TestoInput.hasFocus());
    QCOMPARE(forma.TestoInput.Text.get(), QString());
    QVERIFY(forma.PulsanteAvanti.isVisible());
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  0"));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  0"));
    QCOMPARE(forma.TestoStampa.text(), QStringLiteral("\r\nSolo numeri. Entro 10: somme\r\n\r\n"));
    QVERIFY(forma.withoutRow().empty());
  }

  void theFirstPictureIsTheTickBeforeAnyAnswer() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(!forma.ImgNo.isVisible());
  }

  void theBoxLiesWhereTheInvisibleBoxLies() {
    Banco banco({1500, 1100});
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    QCOMPARE(forma.TestoInput.left(), forma.TestoInputInvisibile.left());
    QCOMPARE(forma.TestoInput.top(), forma.TestoInputInvisibile.top());
    QCOMPARE(forma.TestoInput.width(), forma.TestoInputInvisibile.width());
    QCOMPARE(forma.TestoInput.height(), forma.TestoInputInvisibile.height());
    QCOMPARE(forma.TestoInput.DimensioneTesto.get(),
             qint16(std::lrint(forma.TestoInputInvisibile.fontSize())));
    QVERIFY(forma.TestoInput.DimensioneTesto.get() > 36);
  }

  void theRightAnswerIsCountedWrittenAndOpensTheWay() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    rispondiScrivendo(banco, QStringLiteral("7"));
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(!forma.ImgNo.isVisible());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/si.wav"))});
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  1"));
    QVERIFY(forma.PulsanteAvanti.isEnabled());
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 3 +  4 =  7"));
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral("\r\n\r\n 3 +  4 =  7\r\n")));
    QVERIFY(!forma.TestoInput.isEnabled());
    QVERIFY(forma.PulsanteAvanti.hasFocus());
  }

  void aClickOnTheShownRightAnswerDoesNotReopenTheBox() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    rispondiScrivendo(banco, QStringLiteral("7"));
    banco.clicca(forma.TestoInput.TestoOutput);
    QVERIFY(forma.TestoInput.TestoOutput.isVisible());
    QVERIFY(!forma.TestoInput.TestoInput.isVisible());
  }

  void aWrongAnswerLeavesTheCaseOpenAndTheNumberInSight() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    rispondiScrivendo(banco, QStringLiteral("8"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  1"));
    QVERIFY(!forma.ImgSi.isVisible());
    QVERIFY(forma.ImgNo.isVisible());
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/no.wav"))});
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 3 +  4 = "));
    QCOMPARE(forma.TestoInput.TestoOutput.text(), QStringLiteral("8"));
    banco.clicca(forma.TestoInput.TestoOutput);
    QCOMPARE(forma.TestoInput.Text.get(), QStringLiteral("8"));
    QVERIFY(forma.TestoInput.TestoInput.hasFocus());
  }

  void twoWrongAnswersAndARightOneWriteTheCaseOnce() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    for (const QString& numero : {QStringLiteral("8"), QStringLiteral("9"), QStringLiteral("7")}) {
      rispondiScrivendo(banco, numero);
      if (numero == u"7") break;
      banco.clicca(forma.TestoInput.TestoOutput);
      banco.batti(Qt::Key_Backspace);
    }
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(2));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(forma.TestoStampa.text(),
             QStringLiteral("\r\nSolo numeri. Entro 10: somme\r\n\r\n 3 +  4 =  7\r\n"));
  }

  void leadingNoughtsAreRightAndDoNotStandInTheRecord() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    forma.TestoInput.MaxLength.set(3);
    rispondiScrivendo(banco, QStringLiteral("007"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral(" 3 +  4 =  7\r\n")));
  }

  void anEmptyConfirmationIsNoAnswer() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void enterAndSpaceOnTheWayOnMakeTheNextCase_data() {
    QTest::addColumn<int>("tasto");
    QTest::newRow("Enter") << int(Qt::Key_Return);
    QTest::newRow("Space") << int(Qt::Key_Space);
  }
  void enterAndSpaceOnTheWayOnMakeTheNextCase() {
    QFETCH(int, tasto);
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    rispondiScrivendo(banco, QStringLiteral("7"));
    banco.sorte.scrivi({{9, 10}, {4, 10}});
    banco.batti(tasto);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 4 +  6 = "));
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.TestoInput.TestoInput.hasFocus());
    QCOMPARE(forma.TestoInput.Text.get(), QString());
    QVERIFY(forma.TestoInput.isEnabled());
    // The picture of the last answer stays, and nothing has been judged.
    QVERIFY(forma.ImgSi.isVisible());
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    rispondiScrivendo(banco, QStringLiteral("10"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(2));
  }

  void aHeldEnterNeverAnswersTwiceOrSkipsACase() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    rispondiScrivendo(banco, QStringLiteral("7"));
    banco.sorte.scrivi({{9, 10}, {4, 10}});
    banco.premi(Qt::Key_Return);
    for (int i = 0; i < 30; ++i) {
      QKeyEvent ancora(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"), true);
      QCoreApplication::sendEvent(banco.finestra(), &ancora);
    }
    banco.lascia(Qt::Key_Return);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 4 +  6 = "));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void menuAzzeraKeepsTheCaseAndThePictures() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    rispondiScrivendo(banco, QStringLiteral("8"));
    forma.MenuAzzera.click();
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  0"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(forma.ImgNo.isVisible());
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 3 +  4 = "));
    banco.clicca(forma.TestoInput.TestoOutput);
    banco.batti(Qt::Key_Backspace);
    rispondiScrivendo(banco, QStringLiteral("7"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void aFurtherActivationMakesANewCaseAndClearsTheRecord() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    rispondiScrivendo(banco, QStringLiteral("7"));
    forma.mnuStampa.click();
    banco.sorte.scrivi({{9, 10}, {4, 10}});
    banco.riattiva();
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormNumeriTotale"));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 4 +  6 = "));
    QCOMPARE(forma.TestoStampa.text(), QStringLiteral("\r\nSolo numeri. Entro 10: somme\r\n\r\n"));
    // The print view stays open over the form until it is closed.
    QVERIFY(forma.PictureStampa.isVisible());
    forma.CommandChiudi.click();
    QVERIFY(!forma.PictureStampa.isVisible());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void aFurtherActivationReplacesAnUnansweredCase() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    banco.sorte.scrivi({{9, 10}, {4, 10}});
    banco.riattiva();
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 4 +  6 = "));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void thePrintViewCoversTheFormAndGivesTheFocusBack() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    forma.mnuStampa.click();
    QCOMPARE(forma.PictureStampa.width(), forma.width());
    QCOMPARE(forma.PictureStampa.height(), forma.height());
    QVERIFY(forma.CommandStampa.hasFocus());
    for (int i = 0; i < 4; ++i) {
      banco.batti(Qt::Key_Tab);
      QVERIFY(!forma.TestoInput.TestoInput.hasFocus());
    }
    banco.clicca(forma.CommandChiudi);
    QVERIFY(forma.TestoInput.TestoInput.hasFocus());
    rispondiScrivendo(banco, QStringLiteral("7"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void everyLevelDrawsItsKindAndTakesItsDigits() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    const qint16 cifre[] = {2, 2, 2, 2, 2, 2, 2, 2, 2, 3, 3, 3, 3, 3,
                            3, 3, 3, 3, 5, 5, 5, 5, 5, 5, 5, 5, 5};
    for (qint16 tipo = 1; tipo <= 27; ++tipo) {
      banco.ambiente->stato.TipoEsercizio = tipo;
      forma.PulsanteAvanti.setEnabled(true);
      // The same draws for the form and for the routine of the level.
      prova::SorteDiProva stessa;
      std::vector<prova::SorteDiProva::Estrazione> estrazioni;
      estrazioni.reserve(40);
      for (int i = 0; i < 40; ++i) estrazioni.push_back({(i * 7 + tipo) % 10, 10});
      stessa.scrivi(estrazioni);
      somme::Caso atteso;
      somme::LivelloDi(somme::Famiglia::NumeriTotale, tipo)->genera(atteso, stessa);
      const auto usate = estrazioni.size() - stessa.rimaste();
      estrazioni.resize(usate);
      banco.sorte.scrivi(estrazioni);
      forma.PulsanteAvanti.click();
      const somme::Caso& caso = banco.ambiente->stato;
      QVERIFY2(caso == atteso, qPrintable(QString::number(tipo)));
      QCOMPARE(banco.sorte.rimaste(), std::size_t(0));
      QCOMPARE(forma.TestoInput.MaxLength.get(), cifre[tipo - 1]);
      rispondiScrivendo(banco, QString::number(caso.Totale));
      QCOMPARE(banco.ambiente->stato.ContaEsatti, tipo);
    }
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void aLevelThatTheTableDoesNotHaveKeepsTheLastCase_data() {
    QTest::addColumn<int>("tipo");
    for (const int tipo : {0, -1, 28, 32767}) {
      QTest::newRow(qPrintable(QString::number(tipo))) << tipo;
    }
  }
  void aLevelThatTheTableDoesNotHaveKeepsTheLastCase() {
    QFETCH(int, tipo);
    Banco banco;
    FormaNumeriTastiera& forma =
        apri(banco, 10, {{4, 9}, {0, 10}, {0, 10}, {1, 3}, {0, 1}, {0, 1}});
    const somme::Caso prima = banco.ambiente->stato;
    const QString domanda = forma.EtOperazione.caption();
    banco.ambiente->stato.TipoEsercizio = qint16(tipo);
    forma.PulsanteAvanti.setEnabled(true);
    banco.clicca(forma.PulsanteAvanti);
    QVERIFY(banco.ambiente->stato == prima);
    QCOMPARE(forma.EtOperazione.caption(), domanda);
    QCOMPARE(forma.TestoInput.MaxLength.get(), qint16(3));
  }

  void aSumOfFourDigitsIsWrittenWithItsBlank() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 23, {{9887, 9888}, {1234, 9888}});
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral("1 234 + 8 654 = "));
    rispondiScrivendo(banco, QStringLiteral("9888"));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral("1 234 + 8 654 =  9 888"));
  }

  void aSumOfNoughtCanBeAnswered() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 2, {{0, 11}, {0, 11}});
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 0 +  0 = "));
    rispondiScrivendo(banco, QStringLiteral("0"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void anAnswerPastedWithOtherCharactersIsFiltered() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    QApplication::clipboard()->setText(QStringLiteral("= -7, credo"));
    banco.batti(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(forma.TestoInput.Text.get(), QStringLiteral("7"));
    banco.batti(Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void aHugeNumberSetByTheProgramIsWrongAndOneBeyondTheCurrencyAnOverflow() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    forma.TestoInput.Text.set(QStringLiteral("70000000007"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    banco.clicca(forma.TestoInput.TestoOutput);
    forma.TestoInput.Text.set(QString(40, u'7'));
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(banco.messaggi.mostrati.size(), std::size_t(1));
    QVERIFY(banco.messaggi.mostrati[0].text.contains(QStringLiteral("Overflow")));
    QCOMPARE(banco.fine.stato.value_or(0), 1);
  }

  void aCountThatPassesSixteenBitsIsAnOverflow() {
    Banco banco;
    apri(banco, 1, kTrePiuQuattro);
    banco.ambiente->stato.ContaErrati = 32767;
    rispondiScrivendo(banco, QStringLiteral("8"));
    QCOMPARE(banco.fine.stato.value_or(0), 1);
  }

  void thePointerFollowsTheSettingInTheBoxToo() {
    Banco banco;
    banco.ambiente->stato.CursoreDiSistema = true;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    QCOMPARE(forma.TestoInput.TestoInput.widget()->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(forma.PulsanteAvanti.widget()->cursor().shape(), Qt::ArrowCursor);
  }

  void theTextOfTheBoxGrowsWithTheWindow() {
    Banco banco({800, 600});
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    rispondiScrivendo(banco, QStringLiteral("8"));
    const auto* casella = qobject_cast<QLineEdit*>(forma.TestoInput.TestoOutput.widget());
    const double prima = casella->font().pixelSize();
    banco.ridimensiona({1600, 1200});
    QVERIFY(std::abs(casella->font().pixelSize() / prima - 2) < 0.15);
    QVERIFY(std::abs(forma.TestoInput.left() - forma.TestoInputInvisibile.left()) < 1);
  }

  void theWayOutLeavesTheForm() {
    Banco banco;
    FormaNumeriTastiera& forma = apri(banco, 1, kTrePiuQuattro);
    forma.mnuEsci.click();
    QVERIFY(banco.nomeForma() != QStringLiteral("FormNumeriTotale"));
  }
};

const prova::Iscrizione<FormaNumeriTastieraTest, QApplication> kIscritta;

}  // namespace forma_numeri_tastiera_test

#include "forma_numeri_tastiera_test.moc"
