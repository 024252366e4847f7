#include "exercises/numbers/forma_numeri_hk.h"

#include <QAction>
#include <QApplication>

#include "app/shared/nomi_forme.h"
#include "platform/forms/menu_bar.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/tocchi.h"

namespace forma_numeri_hk_test {

using prova::Banco;
using prova::rispondiToccando;
using prova::tocca;
using prova::toccaNumero;
using somme::FormaNumeriHK;
using somme::Tasto;
using Estrazioni = std::vector<prova::SorteDiProva::Estrazione>;

namespace {

// Draws of `GeneraEntro10` for a sum of 7 = 3 + 4, and of 10 = 4 + 6.
const Estrazioni kTrePiuQuattro{{6, 10}, {3, 7}};
const Estrazioni kQuattroPiuSei{{9, 10}, {4, 10}};

FormaNumeriHK& apriTotale(Banco& banco, qint16 tipo = 1,
                          const Estrazioni& estrazioni = kTrePiuQuattro) {
  banco.ambiente->stato.TipoEsercizio = tipo;
  banco.ambiente->stato.TitoloEsercizio = QStringLiteral("Solo numeri. Entro 10: somme");
  banco.sorte.scrivi(estrazioni);
  return prova::apriPronta<FormaNumeriHK>(banco, somme::forme::kFormNumeriTotaleHK);
}

// The level "trova un addendo".
FormaNumeriHK& apriAddendo(Banco& banco, qint16 tipo = 2,
                           const Estrazioni& estrazioni = kTrePiuQuattro) {
  banco.ambiente->stato.TipoEsercizio = tipo;
  banco.sorte.scrivi(estrazioni);
  return prova::apriPronta<FormaNumeriHK>(banco, somme::forme::kFormNumeriAddendoHK);
}

}  // namespace

// The number exercises by touch.
class FormaNumeriHKTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itOpensWithAQuestionAndAnEmptyBoxThatOnlyShows() {
    Banco banco;
    const FormaNumeriHK& forma = apriTotale(banco);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 3 +  4 = "));
    QVERIFY(forma.TestoInput.isVisible());
    QVERIFY(forma.TestoInput.isLocked());
    QCOMPARE(forma.TestoInput.text(), QString());
    QCOMPARE(forma.TestoInput.maxLength(), 2);
    QVERIFY(forma.PulsanteAvanti.isVisible());
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QCOMPARE(forma.TestoStampa.text(), QStringLiteral("\r\nSolo numeri. Entro 10: somme\r\n\r\n"));
    QVERIFY(forma.withoutRow().empty());
  }

  void theKeysOneToTenWriteTheDigitsNoughtToNine() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco);
    for (int tasto = 1; tasto <= 10; ++tasto) tocca(banco, tasto);
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("0123456789"));
  }

  void theRightAnswerIsWrittenWithThePictureAndOpensTheWay() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco);
    rispondiToccando(banco, QStringLiteral("7"));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral(" 7"));
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(!forma.ImgNo.isVisible());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  1"));
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/si.wav"))});
    QVERIFY(forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.PulsanteAvanti.hasFocus());
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 3 +  4 =  7"));
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral("\r\n\r\n 3 +  4 =  7\r\n")));
  }

  void aSumOfFourDigitsIsWrittenInGroupsInTheBoxToo() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco, 23, {{9887, 9888}, {1234, 9888}});
    rispondiToccando(banco, QStringLiteral("9888"));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("9 888"));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral("1 234 + 8 654 = 9 888"));
  }

  void theOperationIsMadeOfTheCaseOnBothForms() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco);
    rispondiToccando(banco, QStringLiteral("007"));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 3 +  4 =  7"));
    Banco altro;
    FormaNumeriHK& addendo = apriAddendo(altro);
    rispondiToccando(altro, QStringLiteral("04"));
    QCOMPARE(addendo.EtOperazione.caption(), QStringLiteral(" 3 +  4 =  7"));
    QVERIFY(addendo.TestoStampa.text().endsWith(QStringLiteral(" 3 +  4 =  7\r\n")));
  }

  void theAddendIsWhatTheAddendFormAsksFor() {
    Banco banco;
    FormaNumeriHK& forma = apriAddendo(banco);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 3 + ____ =  7"));
    rispondiToccando(banco, QStringLiteral("7"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    tocca(banco, Tasto::Cestino);
    rispondiToccando(banco, QStringLiteral("4"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral(" 4"));
  }

  void aWrongAnswerStaysInTheBoxAndDigitsGoOnBehindItUntilTheBin() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco);
    rispondiToccando(banco, QStringLiteral("8"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  1"));
    QVERIFY(forma.ImgNo.isVisible());
    QVERIFY(!forma.ImgSi.isVisible());
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/no.wav"))});
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("8"));
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    rispondiToccando(banco, QStringLiteral("5"));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("85"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(2));
    tocca(banco, Tasto::Cestino);
    QCOMPARE(forma.TestoInput.text(), QString());
    rispondiToccando(banco, QStringLiteral("7"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void anEmptyBoxAndATouchedNoughtAreNotJudged() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco);
    tocca(banco, Tasto::Conferma);
    rispondiToccando(banco, QStringLiteral("0"));
    rispondiToccando(banco, QStringLiteral("00"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void aSumOfNoughtCannotBeAnsweredAndTheMenuIsTheOnlyWayOn() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco, 2, {{0, 11}, {0, 11}});
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 0 +  0 = "));
    rispondiToccando(banco, QStringLiteral("0"));
    tocca(banco, Tasto::Avanti);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 0 +  0 = "));
    forma.mnuEsci.click();
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenuNumeri"));
  }

  void anAddendOfNoughtCannotBeAnsweredEither() {
    Banco banco;
    FormaNumeriHK& forma = apriAddendo(banco, 3, {{0, 11}});
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 10 + ____ =  10"));
    rispondiToccando(banco, QStringLiteral("0"));
    tocca(banco, Tasto::Avanti);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 10 + ____ =  10"));
    forma.mnuEsci.click();
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenuNumeri"));
  }

  void aDigitKeyAddsBeyondTheLimitOfTheBoxAndANumberTooLargeIsWrong() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco);
    toccaNumero(banco, QStringLiteral("777"));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("777"));
    forma.TestoInput.setText(QString(400, u'7'));
    tocca(banco, Tasto::Conferma);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QVERIFY(!banco.fine.stato);
  }

  void afterARightAnswerOnlyTheWayOnActs() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco);
    rispondiToccando(banco, QStringLiteral("7"));
    for (int tasto = 1; tasto <= 15; ++tasto) tocca(banco, tasto);
    QCOMPARE(forma.TestoInput.text(), QStringLiteral(" 7"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    banco.sorte.scrivi(kQuattroPiuSei);
    tocca(banco, Tasto::Avanti);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 4 +  6 = "));
    QCOMPARE(forma.TestoInput.text(), QString());
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    rispondiToccando(banco, QStringLiteral("10"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(2));
  }

  void theWayOnDoesNothingBeforeARightAnswer() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco);
    toccaNumero(banco, QStringLiteral("7"));
    tocca(banco, Tasto::Avanti);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 3 +  4 = "));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("7"));
  }

  void theKeysElevenTwelveAndHelpDoNothing() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco);
    for (const int posto : {11, 12, 14}) tocca(banco, posto);
    QCOMPARE(forma.TestoInput.text(), QString());
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void mouseAndKeyboardWorkTheWayOnToo() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco);
    rispondiToccando(banco, QStringLiteral("7"));
    banco.sorte.scrivi(kQuattroPiuSei);
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 4 +  6 = "));
  }

  void nothingCanBeTypedOrPastedIntoTheBox() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco);
    banco.clicca(forma.TestoInput);
    QVERIFY(forma.TestoInput.hasFocus());
    banco.scrivi(QStringLiteral("7"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.TestoInput.text(), QString());
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void aLevelThatTheTableDoesNotHaveKeepsTheLastCase() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco, 23, {{9887, 9888}, {1234, 9888}});
    QCOMPARE(forma.TestoInput.maxLength(), 5);
    rispondiToccando(banco, QStringLiteral("9888"));
    banco.ambiente->stato.TipoEsercizio = 28;
    tocca(banco, Tasto::Avanti);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral("1 234 + 8 654 = "));
    QCOMPARE(forma.TestoInput.maxLength(), 5);
  }

  void theAddendFormEnablesItsBoxAndLetsEventsRunAtEachCaseAndTheSumFormDoesNot() {
    Banco banco;
    FormaNumeriHK& addendo = apriAddendo(banco);
    addendo.TestoInput.setEnabled(false);
    rispondiToccando(banco, QStringLiteral("4"));
    int prima = banco.tempo.yields();
    tocca(banco, Tasto::Avanti);
    QVERIFY(addendo.TestoInput.isEnabled());
    QCOMPARE(banco.tempo.yields() - prima, 1);
    Banco altro;
    FormaNumeriHK& totale = apriTotale(altro);
    totale.TestoInput.setEnabled(false);
    rispondiToccando(altro, QStringLiteral("7"));
    prima = altro.tempo.yields();
    tocca(altro, Tasto::Avanti);
    QVERIFY(!totale.TestoInput.isEnabled());
    QCOMPARE(altro.tempo.yields() - prima, 0);
  }

  void touchesUnderThePrintPanelGoOnAndItStaysOpen() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco);
    forma.mnuStampa.click();
    rispondiToccando(banco, QStringLiteral("7"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(forma.PictureStampa.isVisible());
    banco.clicca(forma.CommandChiudi);
    QVERIFY(forma.PulsanteAvanti.hasFocus());
  }

  void aFurtherActivationMakesANewCaseAndClearsTheRecord() {
    Banco banco;
    FormaNumeriHK& forma = apriTotale(banco);
    rispondiToccando(banco, QStringLiteral("7"));
    banco.sorte.scrivi(kQuattroPiuSei);
    banco.riattiva();
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 4 +  6 = "));
    QCOMPARE(forma.TestoStampa.text(), QStringLiteral("\r\nSolo numeri. Entro 10: somme\r\n\r\n"));
    QCOMPARE(banco.rete.ricevuti.count("02#REQ-TOUCH"), 2);
  }

  void theSheetEntryIsTheFirstOfTheMenu() {
    Banco banco;
    const FormaNumeriHK& forma = apriTotale(banco);
    QCOMPARE(forma.page()->menuBar()->actions().first()->objectName(),
             QStringLiteral("mnuStampaHK"));
    QCOMPARE(forma.mnuStampaHK.caption(), QStringLiteral("Stampa Foglio Tastiera &HelpiKeys"));
  }
};

const prova::Iscrizione<FormaNumeriHKTest, QApplication> kIscritta;

}  // namespace forma_numeri_hk_test

#include "forma_numeri_hk_test.moc"
