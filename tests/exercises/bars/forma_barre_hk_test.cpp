#include "exercises/bars/forma_barre_hk.h"

#include <QAction>
#include <QApplication>
#include <utility>

#include "app/shared/nomi_forme.h"
#include "barre_di_prova.h"
#include "platform/forms/menu_bar.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/tocchi.h"

namespace forma_barre_hk_test {

using prova::Banco;
using prova::kCiano;
using prova::kRosso;
using prova::kVerdeScuro;
using prova::rispondiToccando;
using prova::stannoSulPosto;
using prova::tocca;
using prova::toccaNumero;
using prova::visibili;
using somme::FormaBarreHK;
using somme::Tasto;

namespace {

// The draws of the case `totale` = `addendo1` + rest, asking for the total.
void scriviCaso(Banco& banco, int limite, int totale, int addendo1) {
  banco.ambiente->stato.LimiteEsercizio = limite;
  banco.sorte.scrivi({{totale - 1, limite}, {addendo1, totale}});
}

FormaBarreHK& apri10(Banco& banco, int totale = 7, int addendo1 = 3) {
  scriviCaso(banco, 10, totale, addendo1);
  return prova::apriPronta<FormaBarreHK>(banco, somme::forme::kFormBarre10HK);
}

FormaBarreHK& apri20(Banco& banco, int totale = 17, int addendo1 = 9) {
  scriviCaso(banco, 20, totale, addendo1);
  return prova::apriPronta<FormaBarreHK>(banco, somme::forme::kFormBarre20HK);
}

}  // namespace

// The bars by touch.
class FormaBarreHKTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itOpensWithTheBoxOverTheTotalAndTheFocusInIt() {
    Banco banco;
    FormaBarreHK& forma = apri10(banco);
    QVERIFY(forma.TestoInput.hasFocus());
    QVERIFY(!forma.TestoInput.isLocked());
    QVERIFY(stannoSulPosto(forma.TestoInput, forma.Label4[4]));
    QVERIFY(forma.TestoInput.foreColor() == kRosso);
    QVERIFY(forma.Label4[0].foreColor() == kCiano);
    QVERIFY(forma.Label4[2].foreColor() == kVerdeScuro);
    QCOMPARE(forma.TestoInput.maxLength(), 2);
    QCOMPARE(forma.n1.caption(), QStringLiteral(" 3"));
    QCOMPARE(forma.n3.caption(), QStringLiteral("?"));
    QCOMPARE(forma.aiuto1.count(), 10);
    QCOMPARE(forma.TestoStampa.text(),
             QStringLiteral("\r\n     Uso delle barre - Fino al 10\r\n\r\n"));
    QVERIFY(forma.withoutRow().empty());
  }

  void upToTwentyThereAreTwentySquaresAndTheMarkOfTheTen() {
    Banco banco;
    FormaBarreHK& forma = apri20(banco);
    QCOMPARE(forma.aiuto1.count(), 20);
    QVERIFY(!forma.Line1->isVisible());
    QCOMPARE(forma.TestoStampa.text(),
             QStringLiteral("\r\n     Uso delle barre - Fino al 20\r\n\r\n"));
    tocca(banco, Tasto::Aiuto);
    QVERIFY(forma.Line1->isVisible());
    QVERIFY(std::abs(forma.Line1->left() - forma.n1.left() - 10 * forma.n1.height()) < 15);
    QCOMPARE(visibili(forma.aiuto1), 9);
    QCOMPARE(visibili(forma.aiuto2), 8);
    QCOMPARE(visibili(forma.aiuto3), 17);
    rispondiToccando(banco, QStringLiteral("17"));
    tocca(banco, Tasto::Avanti);
    QVERIFY(!forma.Line1->isVisible());
    QCOMPARE(visibili(forma.aiuto3), 0);
  }

  void theRightAnswerByTouchShowsTheSumLocksTheBoxAndOpensTheWay() {
    Banco banco;
    FormaBarreHK& forma = apri20(banco);
    rispondiToccando(banco, QStringLiteral("17"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(forma.n3.caption(), QStringLiteral(" 17"));
    QCOMPARE(forma.Label4[4].caption(), QStringLiteral("17"));
    QVERIFY(forma.TestoInput.isLocked());
    QVERIFY(forma.PulsanteAvanti.isEnabled());
    QVERIFY(forma.PulsanteAvanti.hasFocus());
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral("\r\n     9 +  8 =  17\r\n")));
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/si.wav"))});
  }

  void aWrongAnswerKeepsTheTextAndTheBinEmptiesIt() {
    Banco banco;
    FormaBarreHK& forma = apri10(banco);
    rispondiToccando(banco, QStringLiteral("8"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QVERIFY(forma.ImgNo.isVisible());
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("8"));
    tocca(banco, Tasto::Cestino);
    QCOMPARE(forma.TestoInput.text(), QString());
    rispondiToccando(banco, QStringLiteral("7"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void aTouchedNoughtIsJudgedOnTheBars() {
    Banco banco;
    FormaBarreHK& forma = apri10(banco);
    rispondiToccando(banco, QStringLiteral("0"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    banco.sorte.scrivi({{1, 2}, {4, 10}, {0, 5}});
    forma.mnuGiallaVerde.click();
    rispondiToccando(banco, QStringLiteral("0"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void anEmptyConfirmationIsNoAnswer() {
    Banco banco;
    apri10(banco);
    tocca(banco, Tasto::Conferma);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void afterARightAnswerDigitsBinAndConfirmationDoNothingAndTheWayOnActs() {
    Banco banco;
    FormaBarreHK& forma = apri10(banco);
    rispondiToccando(banco, QStringLiteral("7"));
    toccaNumero(banco, QStringLiteral("0123456789"));
    tocca(banco, Tasto::Cestino);
    tocca(banco, Tasto::Conferma);
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("7"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    scriviCaso(banco, 10, 5, 2);
    tocca(banco, Tasto::Avanti);
    QCOMPARE(forma.n1.caption(), QStringLiteral(" 2"));
    QVERIFY(!forma.TestoInput.isLocked());
    QCOMPARE(forma.TestoInput.text(), QString());
  }

  void theHelpWorksOnASolvedCaseToo() {
    Banco banco;
    FormaBarreHK& forma = apri10(banco);
    rispondiToccando(banco, QStringLiteral("7"));
    tocca(banco, Tasto::Aiuto);
    QCOMPARE(visibili(forma.aiuto3), 7);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void theHelpKeyDoesNothingWhileItsButtonIsDisabled() {
    Banco banco;
    FormaBarreHK& forma = apri10(banco);
    forma.PulsanteAiuto.setEnabled(false);
    tocca(banco, Tasto::Aiuto);
    QCOMPARE(visibili(forma.aiuto3), 0);
  }

  void theWayOnDoesNothingBeforeARightAnswer() {
    Banco banco;
    FormaBarreHK& forma = apri10(banco);
    toccaNumero(banco, QStringLiteral("7"));
    tocca(banco, Tasto::Avanti);
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("7"));
  }

  void theKeysElevenAndTwelveAndNoKeyAtAllDoNothing() {
    Banco banco;
    FormaBarreHK& forma = apri10(banco);
    forma.InterpretaSegnaleHK(forma.DecodificaSegnali(6, 12));
    tocca(banco, 11);
    tocca(banco, 12);
    QCOMPARE(forma.TestoInput.text(), QString());
    QCOMPARE(visibili(forma.aiuto3), 0);
  }

  void aTouchedDigitPassesTheLimitThatATypedOneMeets() {
    Banco banco;
    FormaBarreHK& forma = apri10(banco);
    banco.scrivi(QStringLiteral("123"));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("12"));
    toccaNumero(banco, QStringLiteral("3"));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("123"));
    tocca(banco, Tasto::Conferma);
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
  }

  void aNormalKeyboardAlsoWorks() {
    Banco banco;
    FormaBarreHK& forma = apri20(banco);
    banco.scrivi(QStringLiteral("1a7"));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("17"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(forma.PulsanteAvanti.hasFocus());
  }

  void enterInTheLockedBoxCountsAgainAsOnTheOtherForms() {
    Banco banco;
    FormaBarreHK& forma = apri20(banco);
    rispondiToccando(banco, QStringLiteral("17"));
    banco.clicca(forma.TestoInput);
    banco.batti(Qt::Key_Return);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(2));
  }

  void aSecondActivationDropsCaseAndRecordAndDoesNotMakeTheSquaresAgain() {
    Banco banco;
    FormaBarreHK& forma = apri20(banco);
    rispondiToccando(banco, QStringLiteral("17"));
    const platform::Label* ultimo = &forma.aiuto1[19];
    scriviCaso(banco, 20, 15, 4);
    banco.riattiva();
    QCOMPARE(forma.aiuto1.count(), 20);
    QCOMPARE(&forma.aiuto1[19], ultimo);
    QCOMPARE(forma.n1.caption(), QStringLiteral(" 4"));
    QCOMPARE(forma.TestoStampa.text(),
             QStringLiteral("\r\n     Uso delle barre - Fino al 20\r\n\r\n"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QCOMPARE(banco.rete.ricevuti.count("02#REQ-TOUCH"), 2);
  }

  void aSecondActivationReadsTheMeasuresOfTheWindowAsItIsNow() {
    Banco banco({800, 600});
    FormaBarreHK& forma = apri20(banco);
    banco.ridimensiona({1600, 1200});
    scriviCaso(banco, 20, 10, 4);
    banco.riattiva();
    QVERIFY(std::abs(forma.n3.width() - 10 * forma.n1.height()) < 10);
  }

  void theCountsShareOneSizeOfWriting() {
    Banco banco;
    FormaBarreHK& forma = apri10(banco);
    QCOMPARE(forma.EtichettaEsatti.fontSize(), forma.EtichettaErrati.fontSize());
    forma.EtichettaErrati.setFontSize(20);
    banco.riattiva();
    QVERIFY(std::abs(forma.EtichettaEsatti.fontSize() - 20) < 0.01);
  }

  void aWindowResizedWhileTheConnectionIsWaitedForIsTakenAsItIs() {
    Banco banco({800, 600});
    banco.rete.accoglienza = prova::ReteDiProva::Accoglienza::Tace;
    banco.tempo.after(0.2, [&banco] { banco.ambiente->fondo.window().resize(1600, 1200); });
    banco.tempo.after(0.4, [&banco] { banco.rete.accettaOra(); });
    scriviCaso(banco, 10, 7, 3);
    auto& forma = banco.apri<FormaBarreHK>(somme::forme::kFormBarre10HK);
    QVERIFY(std::abs(forma.n3.width() - 7 * forma.n1.height()) < 10);
    QVERIFY(forma.n1.widget()->height() > 50);
  }

  void aTouchThatGoesOnWhileThePrinterIsAskedDoesNotLoseTheRecord() {
    Banco banco;
    FormaBarreHK& forma = apri10(banco);
    rispondiToccando(banco, QStringLiteral("7"));
    forma.mnuStampa.click();
    bool toccato = false;
    banco.stampanti.mentreRisponde = [&] {
      if (!std::exchange(toccato, true)) tocca(banco, Tasto::Avanti);
    };
    banco.clicca(forma.CommandStampa);
    QVERIFY(toccato);
    QVERIFY(!forma.PulsanteAvanti.isEnabled());
    QCOMPARE(banco.stampanti.lavori.size(), std::size_t(1));
  }

  void theWayOutLeadsToTheMenuOfTheBars() {
    Banco banco;
    FormaBarreHK& forma = apri10(banco);
    forma.mnuEsci.click();
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenuBarre"));
    QCOMPARE(banco.rete.ricevuti.back(), QByteArray("02#REQ-DEFAULT"));
  }

  void theKindsOfExerciseCanBeChosen() {
    Banco banco;
    FormaBarreHK& forma = apri10(banco);
    banco.sorte.scrivi({{0, 2}, {6, 10}, {3, 7}});
    forma.mnuGiallaVerde.click();
    QVERIFY(stannoSulPosto(forma.TestoInput, forma.Label4[2]));
    rispondiToccando(banco, QStringLiteral("4"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void theSheetEntryIsTheFirstOfTheMenu() {
    Banco banco;
    const FormaBarreHK& forma = apri10(banco);
    QCOMPARE(forma.page()->menuBar()->actions().first()->objectName(),
             QStringLiteral("mnuStamopaHK"));
  }
};

const prova::Iscrizione<FormaBarreHKTest, QApplication> kIscritta;

}  // namespace forma_barre_hk_test

#include "forma_barre_hk_test.moc"
