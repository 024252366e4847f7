#include "exercises/blocks/forma_blocchi_scansione.h"

#include <QApplication>
#include <cmath>

#include "blocchi_scanditi.h"
#include "support/iscrizione.h"

namespace forma_blocchi_scansione_test {

using namespace prova;
using namespace prova::scanditi;
using somme::FormaBlocchiScansione;
using somme::TastieraHDUScansione;
using somme::TastieraNumericaScansione;

namespace {

bool sulPosto(const platform::Control& tastiera, const platform::Label& etichetta) {
  return qRound(tastiera.left()) == qRound(etichetta.left()) &&
         qRound(tastiera.top()) == qRound(etichetta.top()) &&
         qRound(tastiera.width()) == qRound(etichetta.width());
}

}  // namespace

// The blocks by scanning: both keyboards, their places and their keys.
class FormaBlocchiScansioneTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itOpensWithTheKeyboardOfPlaceValuesUnderTheFirstBoard() {
    Banco banco;
    const FormaBlocchiScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(forma.withoutRow().empty());
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 24 +  13 = "));
    QVERIFY(incorniciata(forma, forma.Label1));
    QVERIFY(forma.TastieraHDUScansione1.isVisible());
    QCOMPARE(forma.TastieraHDUScansione1.left(), forma.Label1.left());
    QVERIFY(sulPosto(forma.TastieraHDUScansione1, forma.LabelDimensioneTastiera));
    QVERIFY(forma.TastieraHDUScansione1.PictureScansione.hasFocus());
    QVERIFY(!forma.TastieraNumericaScansione1.isVisible());
    QVERIFY(sulPosto(forma.TastieraNumericaScansione1, forma.LabelPerTastieraNumerica));
    QVERIFY(!forma.TestoInput.isVisible());
    QVERIFY(!forma.PulsanteCambio->isVisible());
    QVERIFY(forma.ImgSi.isVisible());
  }

  void theLabelsThatKeepTheKeyboardsPlacesStandAsDesigned() {
    Banco banco;
    const FormaBlocchiScansione& forma = apriLU(banco, 24, 13);
    // Of the design; the form has another size here.
    const double scala = forma.Label1.left() / 840;
    const auto vicino = [&](double misura, double disegno) {
      return std::abs(misura / scala - disegno) < 1;
    };
    QVERIFY(vicino(forma.LabelDimensioneTastiera.left(), 840));
    QVERIFY(vicino(forma.LabelDimensioneTastiera.width(), 4335));
    QVERIFY(vicino(forma.LabelPerTastieraNumerica.left(), 2640));
    QVERIFY(vicino(forma.LabelPerTastieraNumerica.width(), 6255));
    QVERIFY(!forma.LabelDimensioneTastiera.isVisible());
    QVERIFY(!forma.LabelPerTastieraNumerica.isVisible());
  }

  void theKeysOfHigherPlacesAndTheHelpAreNotThere() {
    Banco banco;
    const FormaBlocchiScansione& lu = apriLU(banco, 24, 13);
    QVERIFY(!lu.TastieraHDUScansione1.KVisibile.get());
    QVERIFY(!lu.TastieraHDUScansione1.HVisibile.get());
    QVERIFY(!lu.TastieraNumericaScansione1.AiutoVisibile.get());
    QCOMPARE(lu.TastieraHDUScansione1.pulsanteAcceso(), qint16(TastieraHDUScansione::kDecine));
    Banco altro;
    const FormaBlocchiScansione& hlu = apriHLU(altro, 213, 45);
    QVERIFY(!hlu.TastieraHDUScansione1.KVisibile.get());
    QVERIFY(hlu.TastieraHDUScansione1.HVisibile.get());
    QVERIFY(!hlu.TastieraNumericaScansione1.AiutoVisibile.get());
    QCOMPARE(hlu.TastieraHDUScansione1.pulsanteAcceso(), qint16(TastieraHDUScansione::kCentinaia));
  }

  void manualScanningLeavesBothKeyboardsWithoutAutomaticScanning() {
    Banco banco;
    const FormaBlocchiScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(!forma.TastieraHDUScansione1.ScansioneAutomatica.get());
    QVERIFY(unisciScandendo(banco, forma));
    QVERIFY(!forma.TastieraHDUScansione1.ScansioneAutomatica.get());
    QVERIFY(!forma.TastieraNumericaScansione1.ScansioneAutomatica.get());
  }

  void automaticScanningGoesAtThePaceOfTheSettingsOnBothKeyboards() {
    Banco banco;
    banco.ambiente->stato.TempoScansione = 5;
    const FormaBlocchiScansione& forma = apriLU(banco, 24, 13, 2);
    QVERIFY(forma.TastieraHDUScansione1.ScansioneAutomatica.get());
    QCOMPARE(forma.TastieraHDUScansione1.TimerScansione.interval(), 1250);
    QVERIFY(unisciScandendo(banco, forma));
    QVERIFY(forma.TastieraNumericaScansione1.ScansioneAutomatica.get());
    QCOMPARE(forma.TastieraNumericaScansione1.TimerScansione.interval(), 1250);
  }

  void theKeyboardFollowsTheBoardsAndGoesAtTheThird() {
    Banco banco;
    const FormaBlocchiScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(costruisciScandendo(banco, forma, 24));
    QCOMPARE(forma.TastieraHDUScansione1.left(), forma.Label2.left());
    QVERIFY(incorniciata(forma, forma.Label2));
    bool guardato = false;
    banco.tempo.after(1.9, [&] {
      guardato = true;
      QVERIFY(!forma.TastieraHDUScansione1.isVisible());
      QVERIFY(!forma.TastieraHDUScansione1.Timer1.isEnabled());
      QVERIFY(!forma.TastieraNumericaScansione1.isVisible());
    });
    QVERIFY(costruisciScandendo(banco, forma, 13));
    QVERIFY(guardato);
  }

  void binAndConfirmOfThePlaceValuesActAsTheButtons() {
    Banco banco;
    const FormaBlocchiScansione& forma = apriHLU(banco, 213, 45);
    QVERIFY(metti(banco, forma, TastieraHDUScansione::kCentinaia, 2));
    QVERIFY(metti(banco, forma, TastieraHDUScansione::kDecine));
    QVERIFY(metti(banco, forma, TastieraHDUScansione::kUnita, 4));
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieHLU), QStringLiteral("2h 1da 4u"));
    QVERIFY(metti(banco, forma, TastieraHDUScansione::kConferma));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QVERIFY(forma.ImgNo.isVisible());
    QVERIFY(incorniciata(forma, forma.Label1));
    QVERIFY(metti(banco, forma, TastieraHDUScansione::kCestino));
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieHLU), QStringLiteral("0h 0da 0u"));
    QVERIFY(costruisciScandendo(banco, forma, 213));
    QVERIFY(incorniciata(forma, forma.Label2));
  }

  void theTenthBlockIsSilentlyRefused() {
    Banco banco;
    const FormaBlocchiScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(metti(banco, forma, TastieraHDUScansione::kUnita, 10));
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieLU), QStringLiteral("0da 9u"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void theKeysOfHigherPlacesPutNothing() {
    Banco banco;
    FormaBlocchiScansione& forma = apriLU(banco, 24, 13);
    for (const qint16 tasto : {qint16(0), qint16(1)}) {
      forma.TastieraHDUScansione1.PulsanteCorrente.set(tasto);
      banco.batti(Qt::Key_Return);
    }
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieLU), QStringLiteral("0da 0u"));
    QCOMPARE(forma.ShockwaveFlash1.widget()->accessibleDescription(), QStringLiteral("vuoto"));
    QVERIFY(costruisciScandendo(banco, forma, 24));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
  }

  void theWayOnIsOutOfReachBeforeARightResultAndTheOnlyKeyAfterIt() {
    Banco banco;
    const FormaBlocchiScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(unisciScandendo(banco, forma));
    const TastieraNumericaScansione& tastiera = forma.TastieraNumericaScansione1;
    QVERIFY(!tastiera.AvantiAttivo.get());
    for (int i = 0; i < 2 * tastiera.numeroPulsanti(); ++i) {
      QVERIFY(tastiera.pulsanteAcceso() != kAvanti);
      banco.batti(Qt::Key_Space);
    }
    QVERIFY(rispondiScandendo(banco, forma, QStringLiteral("37")));
    for (int i = 0; i < 5; ++i) {
      QCOMPARE(tastiera.pulsanteAcceso(), qint16(kAvanti));
      banco.batti(Qt::Key_Space);
    }
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    banco.sorte.scrivi(casoLU(24, 13));
    banco.batti(Qt::Key_Return);
    QVERIFY(!tastiera.isVisible());
    QVERIFY(!tastiera.Timer1.isEnabled());
    QVERIFY(forma.TastieraHDUScansione1.Timer1.isEnabled());
  }

  void digitsStopAtTheLimitOfTheBox() {
    Banco banco;
    const FormaBlocchiScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(unisciScandendo(banco, forma));
    QVERIFY(scriviScandendo(banco, forma, QStringLiteral("375")));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("37"));
  }

  void anEmptyTextIsNotJudged() {
    Banco banco;
    const FormaBlocchiScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(unisciScandendo(banco, forma));
    QVERIFY(scegli(banco, forma.TastieraNumericaScansione1, kConferma));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QCOMPARE(banco.suono.suonati.size(), 2);
  }

  void theLockedBoxTakesNothingThatIsTyped() {
    Banco banco;
    FormaBlocchiScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(unisciScandendo(banco, forma));
    forma.TestoInput.setFocus();
    banco.scrivi(QStringLiteral("37"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.TestoInput.text(), QString());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
  }

  void upTo99ThePointersStayAsDesignedAndUpTo999TheyFollowTheSetting() {
    for (const bool diSistema : {false, true}) {
      Banco banco;
      banco.ambiente->stato.CursoreDiSistema = diSistema;
      QCOMPARE(apriLU(banco, 24, 13).PulsanteCambio->mousePointer(), 99);
      Banco altro;
      altro.ambiente->stato.CursoreDiSistema = diSistema;
      QCOMPARE(apriHLU(altro, 213, 45).PulsanteCambioDaH->mousePointer(), diSistema ? 0 : 99);
    }
  }

  void theWayOutLeadsToTheMenuOfTheBlocks() {
    Banco banco;
    apriLU(banco, 24, 13).mnuEsci.click();
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenuPLU"));
  }
};

const prova::Iscrizione<FormaBlocchiScansioneTest, QApplication> kIscritta;

}  // namespace forma_blocchi_scansione_test

#include "forma_blocchi_scansione_test.moc"
