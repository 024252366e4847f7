#include "exercises/bars/forma_barre_scansione.h"

#include <QApplication>

#include "app/shared/nomi_forme.h"
#include "barre_di_prova.h"
#include "platform/forms/loaded_form.h"
#include "support/iscrizione.h"
#include "support/scansione_di_prova.h"

namespace forma_barre_scansione_test {

using prova::Banco;
using prova::kCiano;
using prova::kRosso;
using prova::kVerdeScuro;
using prova::scegliCifre;
using prova::stannoSulPosto;
using prova::visibili;
using somme::FormaBarreScansione;
using somme::TastieraNumericaScansione;

namespace {

constexpr platform::Rgb kGiallo{255, 255, 0};

constexpr int kCestino = TastieraNumericaScansione::kCestino;
constexpr int kAiuto = TastieraNumericaScansione::kAiuto;
constexpr int kConferma = TastieraNumericaScansione::kConferma;
constexpr int kAvanti = TastieraNumericaScansione::kAvanti;

// The form up to `limite` with a case that asks for the total.
FormaBarreScansione& apri(Banco& banco, int limite, int totale, int addendo1, qint16 modo = 1) {
  banco.ambiente->stato.LimiteEsercizio = limite;
  banco.ambiente->stato.ModalitaInput = modo;
  banco.sorte.scrivi({{totale - 1, limite}, {addendo1, totale}});
  return banco.apri<FormaBarreScansione>(limite == 10 ? somme::forme::kFormBarre10Scansione
                                                      : somme::forme::kFormBarre20Scansione);
}

// The next case, which asks for an addend: 1 the first, 2 the second.
void chiediAddendo(Banco& banco, FormaBarreScansione& forma, int quale, int totale, int addendo1) {
  const int limite = banco.ambiente->stato.LimiteEsercizio;
  banco.sorte.scrivi({{quale == 2 ? 0 : 1, 2}, {totale - 1, limite}, {addendo1, totale}});
  forma.mnuGiallaVerde.click();
}

void entrambe() {
  QTest::addColumn<int>("limite");
  QTest::newRow("10") << 10;
  QTest::newRow("20") << 20;
}

}  // namespace

// The bars by scanning, as a pupil with one or two keys uses them.
class FormaBarreScansioneTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itOpensWithTheBoxOverTheTotalAndTheKeyboardLitOnTheFirstKey_data() { entrambe(); }
  void itOpensWithTheBoxOverTheTotalAndTheKeyboardLitOnTheFirstKey() {
    QFETCH(int, limite);
    Banco banco;
    FormaBarreScansione& forma = apri(banco, limite, 7, 3);
    QVERIFY(forma.withoutRow().empty());
    QVERIFY(stannoSulPosto(forma.TestoInput, forma.Label4[4]));
    QVERIFY(forma.TestoInput.isLocked());
    QCOMPARE(forma.TestoInput.maxLength(), 2);
    QVERIFY(forma.TestoInput.foreColor() == kRosso);
    const TastieraNumericaScansione& tastiera = forma.TastieraNumericaScansione1;
    QVERIFY(tastiera.isVisible());
    QVERIFY(tastiera.PictureScansione.hasFocus());
    QCOMPARE(tastiera.pulsanteAcceso(), qint16(0));
    QVERIFY(tastiera.AiutoVisibile.get());
    QVERIFY(!tastiera.AvantiAttivo.get());
    QCOMPARE(qRound(tastiera.width()), qRound(forma.LabelDimensioneTastiera.width()));
    QCOMPARE(qRound(tastiera.top()), qRound(forma.LabelDimensioneTastiera.top()));
    QCOMPARE(qRound(tastiera.left()), qRound(forma.LabelDimensioneTastiera.left()));
    QCOMPARE(forma.n3.caption(), QStringLiteral("?"));
    QCOMPARE(forma.aiuto1.count(), limite);
    QCOMPARE(forma.TestoStampa.text(),
             QStringLiteral("\r\n     Uso delle barre - Fino al %1\r\n\r\n").arg(limite));
    QVERIFY(forma.ImgSi.isVisible());
  }

  void aWholeSumByManualScanning_data() { entrambe(); }
  void aWholeSumByManualScanning() {
    QFETCH(int, limite);
    Banco banco;
    FormaBarreScansione& forma = apri(banco, limite, 7, 3);
    QVERIFY(scegliCifre(banco, forma, {7, kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  1"));
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/si.wav"))});
    QCOMPARE(forma.n3.caption(), QStringLiteral(" 7"));
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral("\r\n     3 +  4 =  7\r\n")));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("7"));
    // The answer stays in the box alone; up to 20 the term below it was written from the start.
    QCOMPARE(forma.Label4[4].caption(), limite == 10 ? QString() : QStringLiteral("7"));
    QCOMPARE(forma.TastieraNumericaScansione1.pulsanteAcceso(), qint16(kAvanti));
    banco.sorte.scrivi({{4, limite}, {2, 5}});
    QVERIFY(scegliCifre(banco, forma, {kAvanti}));
    QCOMPARE(forma.TestoInput.text(), QString());
    QCOMPARE(forma.n1.caption(), QStringLiteral(" 2"));
    QCOMPARE(forma.TastieraNumericaScansione1.pulsanteAcceso(), qint16(0));
    QVERIFY(scegliCifre(banco, forma, {5, kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(2));
  }

  void aWholeSumByAutomaticScanningAtThePaceOfTheSettings_data() { entrambe(); }
  void aWholeSumByAutomaticScanningAtThePaceOfTheSettings() {
    QFETCH(int, limite);
    Banco banco;
    banco.ambiente->stato.TempoScansione = 5;
    FormaBarreScansione& forma = apri(banco, limite, 7, 3, 2);
    TastieraNumericaScansione& tastiera = forma.TastieraNumericaScansione1;
    QCOMPARE(tastiera.TimerScansione.interval(), 1250);
    QVERIFY(prova::scegliAspettando(banco, tastiera, 7));
    QVERIFY(prova::scegliAspettando(banco, tastiera, kConferma));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    banco.sorte.scrivi({{4, limite}, {2, 5}});
    QVERIFY(prova::scegliAspettando(banco, tastiera, kAvanti));
    QCOMPARE(forma.n1.caption(), QStringLiteral(" 2"));
    banco.tempo.advance(1.3);
    QCOMPARE(tastiera.pulsanteAcceso(), qint16(1));
  }

  void thePaceIsReadOnceAtTheActivation() {
    Banco banco;
    FormaBarreScansione& forma = apri(banco, 10, 7, 3, 2);
    banco.ambiente->stato.TempoScansione = 8;
    forma.mnuRossa.click();
    QCOMPARE(forma.TastieraNumericaScansione1.TimerScansione.interval(), 1000);
  }

  void aWrongAnswerKeepsTheTextAndPutsTheLightOnTheBin_data() { entrambe(); }
  void aWrongAnswerKeepsTheTextAndPutsTheLightOnTheBin() {
    QFETCH(int, limite);
    Banco banco;
    FormaBarreScansione& forma = apri(banco, limite, 7, 3);
    QVERIFY(scegliCifre(banco, forma, {5, kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  1"));
    QVERIFY(forma.ImgNo.isVisible());
    QVERIFY(!forma.ImgSi.isVisible());
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/no.wav"))});
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("5"));
    QCOMPARE(forma.TastieraNumericaScansione1.pulsanteAcceso(), qint16(kCestino));
    QCOMPARE(forma.n3.caption(), QStringLiteral("?"));
    // The next choice empties the box.
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.TestoInput.text(), QString());
    QVERIFY(scegliCifre(banco, forma, {7, kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void aThirdDigitIsDroppedWithoutASound() {
    Banco banco;
    FormaBarreScansione& forma = apri(banco, 20, 17, 3);
    QVERIFY(scegliCifre(banco, forma, {1, 7, 4}));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("17"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void aWrongNumberOfOneDigitCanGrowIntoAWrongOneOfTwo() {
    Banco banco;
    FormaBarreScansione& forma = apri(banco, 20, 17, 3);
    QVERIFY(scegliCifre(banco, forma, {1, kConferma, 6}));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("16"));
    QVERIFY(scegliCifre(banco, forma, {kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(2));
    QVERIFY(scegliCifre(banco, forma, {7}));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("16"));
  }

  void key0OnAnEmptyBoxIsRightWhenTheAnswerIs0() {
    Banco banco;
    FormaBarreScansione& forma = apri(banco, 10, 7, 3);
    chiediAddendo(banco, forma, 1, 4, 0);
    QVERIFY(scegliCifre(banco, forma, {0}));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("0"));
    QVERIFY(scegliCifre(banco, forma, {kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void anEmptyConfirmIsRightWhenTheAnswerIs0AndAddsTheLine_data() { entrambe(); }
  void anEmptyConfirmIsRightWhenTheAnswerIs0AndAddsTheLine() {
    QFETCH(int, limite);
    Banco banco;
    FormaBarreScansione& forma = apri(banco, limite, 7, 3);
    QVERIFY(scegliCifre(banco, forma, {kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    chiediAddendo(banco, forma, 1, 4, 0);
    QVERIFY(scegliCifre(banco, forma, {kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral("\r\n     0 +  4 =  4\r\n")));
  }

  void helpIsAKeyOfTheKeyboard_data() { entrambe(); }
  void helpIsAKeyOfTheKeyboard() {
    QFETCH(int, limite);
    Banco banco;
    FormaBarreScansione& forma = apri(banco, limite, 7, 3);
    QVERIFY(scegliCifre(banco, forma, {kAiuto}));
    QCOMPARE(visibili(forma.aiuto1), 3);
    QCOMPARE(visibili(forma.aiuto2), 4);
    QCOMPARE(visibili(forma.aiuto3), 7);
    forma.mnuRossa.click();
    QCOMPARE(visibili(forma.aiuto1) + visibili(forma.aiuto2) + visibili(forma.aiuto3), 0);
  }

  void theMarkOfTheTenIsShownByHelpWhateverTheRangeAndHiddenByEachCase() {
    Banco banco;
    FormaBarreScansione& forma = apri(banco, 20, 17, 3);
    QVERIFY(!forma.Line1->isVisible());
    QCOMPARE(qRound(forma.Line1->x1()), qRound(forma.Line1->x2()));
    banco.ambiente->stato.LimiteEsercizio = 10;
    QVERIFY(scegliCifre(banco, forma, {kAiuto}));
    QVERIFY(forma.Line1->isVisible());
    forma.mnuRossa.click();
    QVERIFY(!forma.Line1->isVisible());
  }

  void upTo10TheBoxTakesTheColorOfWhatIsAskedFor() {
    Banco banco;
    FormaBarreScansione& forma = apri(banco, 10, 7, 3);
    QVERIFY(forma.TestoInput.foreColor() == kRosso);
    chiediAddendo(banco, forma, 2, 7, 3);
    QVERIFY(stannoSulPosto(forma.TestoInput, forma.Label4[2]));
    QVERIFY(forma.TestoInput.foreColor() == kVerdeScuro);
    chiediAddendo(banco, forma, 1, 7, 3);
    QVERIFY(stannoSulPosto(forma.TestoInput, forma.Label4[0]));
    QVERIFY(forma.TestoInput.foreColor() == kCiano);
    QVERIFY(forma.Label4[0].foreColor() == kCiano);
    QCOMPARE(forma.Label4[0].caption(), QString());
  }

  void upTo20AllTermsAreWrittenAndTheFirstIsYellow() {
    Banco banco;
    FormaBarreScansione& forma = apri(banco, 20, 17, 3);
    QCOMPARE(forma.Label4[0].caption(), QStringLiteral("3"));
    QCOMPARE(forma.Label4[2].caption(), QStringLiteral("14"));
    QCOMPARE(forma.Label4[4].caption(), QStringLiteral("17"));
    QVERIFY(forma.Label4[0].foreColor() == kGiallo);
    QVERIFY(forma.Label4[2].foreColor() == kVerdeScuro);
    QVERIFY(forma.Label4[4].foreColor() == kRosso);
    // The box lies on the one that is asked for.
    QVERIFY(stannoSulPosto(forma.TestoInput, forma.Label4[4]));
  }

  void upTo20AHiddenFirstAddendIsYellowFromTheSecondCaseOn() {
    Banco banco;
    FormaBarreScansione& forma = apri(banco, 20, 17, 3);
    chiediAddendo(banco, forma, 1, 15, 6);
    QVERIFY(stannoSulPosto(forma.TestoInput, forma.Label4[0]));
    QVERIFY(forma.TestoInput.foreColor() == kGiallo);
    QVERIFY(scegliCifre(banco, forma, {6, kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void upTo20TheFirstCaseTakesTheColorOfTheActivation() {
    Banco banco;
    FormaBarreScansione& forma = apri(banco, 20, 17, 3);
    banco.ambiente->stato.TipoEsercizio = 2;
    banco.sorte.scrivi({{1, 2}, {14, 20}, {6, 15}});
    platform::LoadedForm(forma).runActivate();
    QVERIFY(forma.TestoInput.foreColor() == kCiano);
    QVERIFY(forma.Label4[0].foreColor() == kGiallo);
  }

  void thePrintPanelSilencesTheKeyboardAndClosingItGivesANewCase_data() { entrambe(); }
  void thePrintPanelSilencesTheKeyboardAndClosingItGivesANewCase() {
    QFETCH(int, limite);
    Banco banco;
    FormaBarreScansione& forma = apri(banco, limite, 7, 3);
    forma.mnuStampa.click();
    QVERIFY(!forma.TastieraNumericaScansione1.Timer1.isEnabled());
    QVERIFY(!forma.TastieraNumericaScansione1.PictureScansione.hasFocus());
    banco.sorte.scrivi({{4, limite}, {2, 5}});
    forma.CommandChiudi.click();
    QVERIFY(!forma.PictureStampa.isVisible());
    QCOMPARE(forma.n1.caption(), QStringLiteral(" 2"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QVERIFY(forma.TastieraNumericaScansione1.PictureScansione.hasFocus());
    QVERIFY(scegliCifre(banco, forma, {5, kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void closingThePrintPanelAfterASolvedCaseClearsItsState_data() { entrambe(); }
  void closingThePrintPanelAfterASolvedCaseClearsItsState() {
    QFETCH(int, limite);
    Banco banco;
    FormaBarreScansione& forma = apri(banco, limite, 7, 3);
    QVERIFY(scegliCifre(banco, forma, {7, kConferma}));
    forma.mnuStampa.click();
    banco.sorte.scrivi({{4, limite}, {2, 5}});
    // The key that closes the panel does not choose on the keyboard at its release.
    forma.CommandChiudi.setFocus();
    banco.premi(Qt::Key_Return);
    QVERIFY(!forma.PictureStampa.isVisible());
    banco.tempo.advance(0.1);
    banco.lascia(Qt::Key_Return);
    QCOMPARE(forma.TestoInput.text(), QString());
    QVERIFY(!forma.TastieraNumericaScansione1.AvantiAttivo.get());
    QVERIFY(!forma.TastieraNumericaScansione1.PulsanteNumero[kAvanti].isEnabled());
    QCOMPARE(forma.TastieraNumericaScansione1.pulsanteAcceso(), qint16(0));
  }

  void theLockedBoxTakesNothingThatIsTyped() {
    Banco banco;
    FormaBarreScansione& forma = apri(banco, 10, 7, 3);
    forma.TestoInput.setFocus();
    banco.scrivi(QStringLiteral("7"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.TestoInput.text(), QString());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
  }

  void thePointersStayAsDesigned() {
    Banco banco;
    banco.ambiente->stato.CursoreDiSistema = true;
    FormaBarreScansione& forma = apri(banco, 10, 7, 3);
    for (const platform::Control* controllo : forma.controls()) {
      QCOMPARE(controllo->mousePointer(), 99);
    }
  }

  void theWayOutLeadsToTheMenuOfTheBars_data() { entrambe(); }
  void theWayOutLeadsToTheMenuOfTheBars() {
    QFETCH(int, limite);
    Banco banco;
    FormaBarreScansione& forma = apri(banco, limite, 7, 3);
    forma.mnuEsci.click();
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenuBarre"));
  }
};

const prova::Iscrizione<FormaBarreScansioneTest, QApplication> kIscritta;

}  // namespace forma_barre_scansione_test

#include "forma_barre_scansione_test.moc"
