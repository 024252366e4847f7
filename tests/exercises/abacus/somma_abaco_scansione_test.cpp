#include "abaco_scandito.h"

#include <QApplication>

#include "support/iscrizione.h"

namespace somma_abaco_scansione_test {

using namespace prova;
using somme::FormaAbacoScansione;

// Whole sums by scanning: the way to the digits, the answer, what comes after.
class SommaAbacoScansioneTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theLastKeyPassesOnToTheDigitsAndTheAbacusStays() {
    BancoScansione banco(3);
    QVERIFY(banco.scegli(Valori::kDecine));
    QVERIFY(banco.scegli(Valori::kConferma));
    QVERIFY(banco.solaSulloSchermo(banco.cifre));
    QVERIFY(!banco.valori.Timer1.isEnabled());
    QCOMPARE(banco.cifre.pulsanteAcceso(), qint16(0));
    QVERIFY(!banco.cifre.ScansioneAutomatica.get());
    QCOMPARE(banco.detto(), QStringLiteral("1 decina"));
  }

  void aWholeSumByManualScanning() {
    BancoScansione banco(3, BancoScansione::caso(3, 12, 7));
    FormaAbacoScansione& forma = banco.forma;
    QVERIFY(banco.scegli(Valori::kConferma));
    QVERIFY(banco.rispondi("12"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  1"));
    QCOMPARE(banco.suono.suonati, QStringList{banco.fileDelSuono("si")});
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 7 +  5 = "));
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral("\r\n\r\n 7 +  5 =  12\r\n")));
    QVERIFY(!forma.TestoInput.Enabled.get());
    QCOMPARE(banco.cifre.pulsanteAcceso(), qint16(Cifre::kAvanti));
    QVERIFY(banco.cifre.PictureScansione.hasFocus());
    banco.sorte.scrivi(BancoScansione::caso(3, 82, 47));
    QVERIFY(banco.scegli(Cifre::kAvanti));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(forma.TestoInput.Text.get(), QString());
    QVERIFY(banco.solaSulloSchermo(banco.valori));
    QVERIFY(!banco.cifre.AvantiAttivo.get());
    QVERIFY(!banco.cifre.Timer1.isEnabled());
    // The box stays disabled, and takes the digits all the same.
    QVERIFY(!forma.TestoInput.Enabled.get());
    QVERIFY(banco.scegli(Valori::kConferma));
    QVERIFY(banco.rispondi("82"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(2));
  }

  void aWholeSumWithACarryByAutomaticScanningWithOneKey() {
    BancoScansione banco(3, BancoScansione::caso(3, 12, 7), 2);
    QVERIFY(banco.valori.ScansioneAutomatica.get());
    QVERIFY(banco.scegli(Valori::kUnita, 10));
    QCOMPARE(banco.detto(), QStringLiteral("1 decina"));
    QVERIFY(banco.solaSulloSchermo(banco.valori));
    QVERIFY(banco.valori.TimerScansione.isEnabled());
    QCOMPARE(banco.valori.pulsanteAcceso(), qint16(Valori::kDecine));
    QVERIFY(banco.scegli(Valori::kConferma));
    QVERIFY(banco.cifre.ScansioneAutomatica.get());
    QVERIFY(banco.rispondi("12"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    banco.tempo.advance(30);
    QCOMPARE(banco.cifre.pulsanteAcceso(), qint16(Cifre::kAvanti));
    banco.batti(Qt::Key_Space);
    QVERIFY(banco.solaSulloSchermo(banco.valori));
  }

  void thePaceOfTheSettingsReachesBothKeyboards() {
    BancoScansione banco(3, {}, 2);
    QCOMPARE(banco.valori.TimerScansione.interval(), 1000);
    banco.ambiente->stato.TempoScansione = 12;
    QVERIFY(banco.scegli(Valori::kConferma));
    QCOMPARE(banco.cifre.TimerScansione.interval(), 3000);
  }

  void aWrongSumLeavesThePupilWithTheKeys() {
    BancoScansione banco(3, BancoScansione::caso(3, 12, 7));
    FormaAbacoScansione& forma = banco.forma;
    QVERIFY(banco.scegli(Valori::kConferma));
    QVERIFY(banco.rispondi("1"));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QCOMPARE(forma.EtichettaErrati.caption(), QStringLiteral("Errati  1"));
    QVERIFY(forma.ImgNo.isVisible());
    QVERIFY(!forma.ImgSi.isVisible());
    QCOMPARE(banco.suono.suonati, QStringList{banco.fileDelSuono("no")});
    QVERIFY(forma.TestoInput.TestoOutput.isVisible());
    QCOMPARE(forma.TestoInput.TestoOutput.opener(), QStringLiteral("cestino"));
    QVERIFY(!banco.cifre.AvantiAttivo.get());
    QVERIFY(banco.solaSulloSchermo(banco.cifre));
    // The digits go on behind what stands there.
    QVERIFY(banco.rispondi("2"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void theBinOfTheDigitsOpensTheBoxAndEmptiesIt() {
    BancoScansione banco(3, BancoScansione::caso(3, 12, 7));
    QVERIFY(banco.scegli(Valori::kConferma));
    QVERIFY(banco.rispondi("11"));
    QVERIFY(banco.scegli(Cifre::kCestino));
    QCOMPARE(banco.forma.TestoInput.Text.get(), QString());
    QVERIFY(banco.forma.TestoInput.TestoInput.isVisible());
    QVERIFY(banco.cifre.PictureScansione.hasFocus());
    QVERIFY(banco.rispondi("12"));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void aDigitBeyondTheLengthOfTheLevelIsDropped() {
    BancoScansione banco(11);
    QVERIFY(banco.scegli(Valori::kConferma));
    for (int cifra = 1; cifra <= 4; ++cifra) QVERIFY(banco.scegli(cifra));
    QCOMPARE(banco.forma.TestoInput.Text.get(), QStringLiteral("123"));
  }

  void anEmptyBoxIsNotJudged() {
    BancoScansione banco(3);
    QVERIFY(banco.scegli(Valori::kConferma));
    QVERIFY(banco.scegli(Cifre::kConferma));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void helpAndTheWayOnAreOutOfReachBeforeARightSum() {
    BancoScansione banco(3);
    QVERIFY(banco.scegli(Valori::kConferma));
    QVERIFY(!banco.scegli(Cifre::kAiuto));
    QVERIFY(!banco.scegli(Cifre::kAvanti));
  }

  void thePrintPanelSilencesTheKeyboardAndClosingItDoesNotWakeIt() {
    BancoScansione banco(3);
    for (const bool aCifre : {false, true}) {
      if (aCifre) {
        banco.mostra(somme::forme::kFormAbacoScansione);
        QVERIFY(banco.scegli(Valori::kConferma));
      }
      const somme::TastieraScansione& tastiera =
          aCifre ? static_cast<somme::TastieraScansione&>(banco.cifre) : banco.valori;
      banco.forma.mnuStampa.click();
      QVERIFY(!tastiera.Timer1.isEnabled());
      banco.clicca(banco.forma.CommandChiudi);
      QVERIFY(tastiera.isVisible());
      const qint16 acceso = tastiera.pulsanteAcceso();
      banco.tempo.advance(1);
      banco.batti(Qt::Key_Space);
      QCOMPARE(tastiera.pulsanteAcceso(), acceso);
      QVERIFY(!tastiera.Timer1.isEnabled());
    }
  }

  void aPrintPanelOpenedInACarryStaysOverTheKeyboardThatComesBack() {
    BancoScansione banco(3);
    QVERIFY(banco.scegli(Valori::kUnita, 9));
    banco.tempo.after(nelPasso(50), [&] { banco.forma.mnuStampa.click(); });
    QVERIFY(banco.scegli(Valori::kUnita));
    QVERIFY(banco.forma.PictureStampa.isVisible());
    QVERIFY(banco.forma.isCovered(banco.valori));
    QVERIFY(banco.forma.CommandStampa.hasFocus() || banco.forma.CommandChiudi.hasFocus());
    banco.clicca(banco.forma.CommandChiudi);
    QVERIFY(banco.valori.PictureScansione.hasFocus());
    QVERIFY(banco.scegli(Valori::kDecine));
    QCOMPARE(banco.detto(), QStringLiteral("2 decine"));
  }

  void aSecondActivationStartsACaseAndARecordAnew() {
    BancoScansione banco(3, BancoScansione::caso(3, 12, 7));
    QVERIFY(banco.scegli(Valori::kConferma));
    QVERIFY(banco.rispondi("12"));
    banco.sorte.scrivi(BancoScansione::caso(3, 82, 47));
    banco.mostra(somme::forme::kFormAbacoScansione);
    QCOMPARE(banco.forma.EtOperazione.caption(), QStringLiteral(" 47 +  35 = "));
    QCOMPARE(banco.forma.TestoStampa.text(), QStringLiteral("\r\nAbaco. Entro 99: prova\r\n\r\n"));
    QVERIFY(banco.solaSulloSchermo(banco.valori));
  }

  void thePointerIsLeftAloneUnlessTheSystemsIsWanted() {
    BancoScansione banco(3);
    QCOMPARE(banco.forma.EtOperazione.mousePointer(), 99);
    banco.batti(Qt::Key_E, Qt::AltModifier);
    banco.ambiente->stato.CursoreDiSistema = true;
    auto& forma = banco.apri<FormaAbacoScansione>(somme::forme::kFormAbacoScansione);
    QCOMPARE(forma.EtOperazione.mousePointer(), 0);
  }
};

const prova::Iscrizione<SommaAbacoScansioneTest, QApplication> kIscritta;

}  // namespace somma_abaco_scansione_test

#include "somma_abaco_scansione_test.moc"
