#include "exercises/blocks/forma_blocchi_scansione.h"

#include <cmath>

#include "blocchi_di_prova.h"
#include "exercises/blocks/form_hlu_scansione.h"
#include "exercises/blocks/form_lu_scansione.h"
#include "support/scansione_di_prova.h"

using namespace prova;
using somme::FormaBlocchiScansione;
using somme::FormHLUScansione;
using somme::FormLUScansione;
using somme::TastieraHDUScansione;
using somme::TastieraNumericaScansione;

namespace {

constexpr int kConferma = TastieraNumericaScansione::kConferma;
constexpr int kCestino = TastieraNumericaScansione::kCestino;
constexpr int kAvanti = TastieraNumericaScansione::kAvanti;

const QString kSpecieLU = QStringLiteral("da u");
const QString kSpecieHLU = QStringLiteral("h da u");

// What the level with and without carries draws for a case up to `limite`.
std::vector<SorteDiProva::Estrazione> caso(int limite, int addendo1, int addendo2) {
  const int totale = addendo1 + addendo2;
  return {{totale - 1, limite == 99 ? 99 : 988}, {addendo1, totale}};
}

FormLUScansione& apriLU(Banco& banco, int addendo1, int addendo2, qint16 modo = 1) {
  banco.ambiente->stato.TipoEsercizio = 3;
  banco.ambiente->stato.ModalitaInput = modo;
  banco.sorte.scrivi(caso(99, addendo1, addendo2));
  return banco.apri<FormLUScansione>(somme::forme::kFormLUScansione);
}
FormHLUScansione& apriHLU(Banco& banco, int addendo1, int addendo2, qint16 modo = 1) {
  banco.ambiente->stato.TipoEsercizio = 6;
  banco.ambiente->stato.ModalitaInput = modo;
  banco.sorte.scrivi(caso(999, addendo1, addendo2));
  return banco.apri<FormHLUScansione>(somme::forme::kFormHLUScansione);
}

// The pupil's way of choosing on a keyboard: by hand, or by waiting.
bool scegli(Banco& banco, const somme::TastieraScansione& tastiera, int tasto) {
  return banco.ambiente->stato.ModalitaInput == 1 ? scegliAMano(banco, tastiera, tasto)
                                                  : scegliAspettando(banco, tastiera, tasto);
}
bool metti(Banco& banco, const FormaBlocchiScansione& forma, int tasto, int volte = 1) {
  for (int i = 0; i < volte; ++i) {
    if (!scegli(banco, forma.TastieraHDUScansione1, tasto)) return false;
  }
  return true;
}
// Builds a number on the board in use and has it judged.
bool costruisciScandendo(Banco& banco, const FormaBlocchiScansione& forma, int numero) {
  return metti(banco, forma, TastieraHDUScansione::kCentinaia, numero / 100) &&
         metti(banco, forma, TastieraHDUScansione::kDecine, numero / 10 % 10) &&
         metti(banco, forma, TastieraHDUScansione::kUnita, numero % 10) &&
         metti(banco, forma, TastieraHDUScansione::kConferma);
}
bool unisciScandendo(Banco& banco, const FormaBlocchiScansione& forma) {
  return costruisciScandendo(banco, forma, banco.ambiente->stato.Addendo1) &&
         costruisciScandendo(banco, forma, banco.ambiente->stato.Addendo2);
}
bool scriviScandendo(Banco& banco, const FormaBlocchiScansione& forma, const QString& cifre) {
  return std::all_of(cifre.begin(), cifre.end(), [&](QChar cifra) {
    return scegli(banco, forma.TastieraNumericaScansione1, cifra.digitValue());
  });
}
bool rispondiScandendo(Banco& banco, const FormaBlocchiScansione& forma, const QString& cifre) {
  return scriviScandendo(banco, forma, cifre) &&
         scegli(banco, forma.TastieraNumericaScansione1, kConferma);
}
bool sulPosto(const platform::Control& tastiera, const platform::Label& etichetta) {
  return qRound(tastiera.left()) == qRound(etichetta.left()) &&
         qRound(tastiera.top()) == qRound(etichetta.top()) &&
         qRound(tastiera.width()) == qRound(etichetta.width());
}

}  // namespace

// The blocks by scanning, as a pupil with one or two keys uses them.
class FormaBlocchiScansioneTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itOpensWithTheKeyboardOfPlaceValuesUnderTheFirstBoard() {
    Banco banco;
    const FormLUScansione& forma = apriLU(banco, 24, 13);
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
    QVERIFY(!forma.PulsanteCambio.isVisible());
    QVERIFY(forma.ImgSi.isVisible());
  }

  void theLabelsThatKeepTheKeyboardsPlacesStandAsDesigned() {
    Banco banco;
    const FormLUScansione& forma = apriLU(banco, 24, 13);
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
    const FormLUScansione& lu = apriLU(banco, 24, 13);
    QVERIFY(!lu.TastieraHDUScansione1.KVisibile.get());
    QVERIFY(!lu.TastieraHDUScansione1.HVisibile.get());
    QVERIFY(!lu.TastieraNumericaScansione1.AiutoVisibile.get());
    QCOMPARE(lu.TastieraHDUScansione1.pulsanteAcceso(), qint16(TastieraHDUScansione::kDecine));
    Banco altro;
    const FormHLUScansione& hlu = apriHLU(altro, 213, 45);
    QVERIFY(!hlu.TastieraHDUScansione1.KVisibile.get());
    QVERIFY(hlu.TastieraHDUScansione1.HVisibile.get());
    QVERIFY(!hlu.TastieraNumericaScansione1.AiutoVisibile.get());
    QCOMPARE(hlu.TastieraHDUScansione1.pulsanteAcceso(), qint16(TastieraHDUScansione::kCentinaia));
  }

  void manualScanningLeavesBothKeyboardsWithoutAutomaticScanning() {
    Banco banco;
    const FormLUScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(!forma.TastieraHDUScansione1.ScansioneAutomatica.get());
    QVERIFY(unisciScandendo(banco, forma));
    QVERIFY(!forma.TastieraHDUScansione1.ScansioneAutomatica.get());
    QVERIFY(!forma.TastieraNumericaScansione1.ScansioneAutomatica.get());
  }

  void automaticScanningGoesAtThePaceOfTheSettingsOnBothKeyboards() {
    Banco banco;
    banco.ambiente->stato.TempoScansione = 5;
    const FormLUScansione& forma = apriLU(banco, 24, 13, 2);
    QVERIFY(forma.TastieraHDUScansione1.ScansioneAutomatica.get());
    QCOMPARE(forma.TastieraHDUScansione1.TimerScansione.interval(), 1250);
    QVERIFY(unisciScandendo(banco, forma));
    QVERIFY(forma.TastieraNumericaScansione1.ScansioneAutomatica.get());
    QCOMPARE(forma.TastieraNumericaScansione1.TimerScansione.interval(), 1250);
  }

  void aWholeSumWithACarryByScanning_data() {
    QTest::addColumn<qint16>("modo");
    QTest::newRow("manual") << qint16(1);
    QTest::newRow("automatic") << qint16(2);
  }
  void aWholeSumWithACarryByScanning() {
    QFETCH(qint16, modo);
    Banco banco;
    const FormLUScansione& forma = apriLU(banco, 27, 15, modo);
    QVERIFY(unisciScandendo(banco, forma));
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("3da 12u"));
    QVERIFY(!forma.TastieraHDUScansione1.isVisible());
    QVERIFY(!forma.TastieraNumericaScansione1.isVisible());
    QVERIFY(forma.PulsanteCambio.isVisible());
    QVERIFY(forma.PulsanteCambio.hasFocus());
    banco.batti(modo == 1 ? Qt::Key_Return : Qt::Key_Space);
    QVERIFY(!forma.PulsanteCambio.isVisible());
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("da")), 4);
    QVERIFY(forma.TestoInput.isVisible());
    QVERIFY(forma.TestoInput.isLocked());
    QVERIFY(forma.TastieraNumericaScansione1.isVisible());
    QVERIFY(forma.TastieraNumericaScansione1.PictureScansione.hasFocus());
    QVERIFY(rispondiScandendo(banco, forma, QStringLiteral("42")));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 27 +  15 =  42"));
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral(" 27 +  15 =  42\r\n")));
    QCOMPARE(banco.suono.suonati.size(), 3);
    QCOMPARE(forma.TastieraNumericaScansione1.pulsanteAcceso(), qint16(kAvanti));
    banco.sorte.scrivi(caso(99, 24, 13));
    QVERIFY(scegli(banco, forma.TastieraNumericaScansione1, kAvanti));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 24 +  13 = "));
    QVERIFY(!forma.TastieraNumericaScansione1.isVisible());
    QVERIFY(!forma.TestoInput.isVisible());
    QCOMPARE(forma.TestoInput.text(), QString());
    QCOMPARE(forma.TastieraHDUScansione1.left(), forma.Label1.left());
    QVERIFY(unisciScandendo(banco, forma));
    QVERIFY(rispondiScandendo(banco, forma, QStringLiteral("37")));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(2));
  }

  void aWholeSumUpTo999WithBothCarries() {
    Banco banco;
    const FormHLUScansione& forma = apriHLU(banco, 167, 258);
    QVERIFY(unisciScandendo(banco, forma));
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieHLU), QStringLiteral("3h 11da 15u"));
    QVERIFY(forma.PulsanteCambioUDa.hasFocus());
    banco.batti(Qt::Key_Space);
    QVERIFY(forma.PulsanteCambioDaH.isVisible());
    QVERIFY(forma.PulsanteCambioDaH.hasFocus());
    QVERIFY(!forma.TestoInput.isVisible());
    QVERIFY(!forma.TastieraNumericaScansione1.isVisible());
    banco.batti(Qt::Key_Space);
    QCOMPARE(blocchi(forma.ShockwaveFlash3, QStringLiteral("h")), 4);
    QCOMPARE(forma.TestoInput.maxLength(), 3);
    QVERIFY(rispondiScandendo(banco, forma, QStringLiteral("425")));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void tenTensAloneAskForTheSecondCarryByItsButton() {
    Banco banco;
    const FormHLUScansione& forma = apriHLU(banco, 162, 253);
    QVERIFY(unisciScandendo(banco, forma));
    QVERIFY(!forma.PulsanteCambioUDa.isVisible());
    QVERIFY(forma.PulsanteCambioDaH.hasFocus());
  }

  void twelveUnitsAndNineTensAskForOneCarryOnly() {
    Banco banco;
    const FormHLUScansione& forma = apriHLU(banco, 147, 255);
    QVERIFY(unisciScandendo(banco, forma));
    banco.batti(Qt::Key_Return);
    QVERIFY(!forma.PulsanteCambioDaH.isVisible());
    QVERIFY(forma.TastieraNumericaScansione1.isVisible());
  }

  void theKeyboardFollowsTheBoardsAndGoesAtTheThird() {
    Banco banco;
    const FormLUScansione& forma = apriLU(banco, 24, 13);
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
    const FormHLUScansione& forma = apriHLU(banco, 213, 45);
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
    const FormLUScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(metti(banco, forma, TastieraHDUScansione::kUnita, 10));
    QCOMPARE(contenuto(forma.ShockwaveFlash1, kSpecieLU), QStringLiteral("0da 9u"));
    QVERIFY(banco.suono.suonati.isEmpty());
  }

  void theKeysOfHigherPlacesPutNothing() {
    Banco banco;
    FormLUScansione& forma = apriLU(banco, 24, 13);
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
    const FormLUScansione& forma = apriLU(banco, 24, 13);
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
    banco.sorte.scrivi(caso(99, 24, 13));
    banco.batti(Qt::Key_Return);
    QVERIFY(!tastiera.isVisible());
    QVERIFY(!tastiera.Timer1.isEnabled());
    QVERIFY(forma.TastieraHDUScansione1.Timer1.isEnabled());
  }

  void aWrongResultLeavesTheKeyboardRunningAndTheTextInTheBox() {
    Banco banco;
    const FormLUScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(unisciScandendo(banco, forma));
    QVERIFY(rispondiScandendo(banco, forma, QStringLiteral("36")));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QVERIFY(forma.ImgNo.isVisible());
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("36"));
    QVERIFY(!forma.TastieraNumericaScansione1.AvantiAttivo.get());
    QVERIFY(scegli(banco, forma.TastieraNumericaScansione1, kCestino));
    QCOMPARE(forma.TestoInput.text(), QString());
    QVERIFY(rispondiScandendo(banco, forma, QStringLiteral("37")));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void digitsStopAtTheLimitOfTheBox() {
    Banco banco;
    const FormLUScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(unisciScandendo(banco, forma));
    QVERIFY(scriviScandendo(banco, forma, QStringLiteral("375")));
    QCOMPARE(forma.TestoInput.text(), QStringLiteral("37"));
  }

  void anEmptyTextIsNotJudged() {
    Banco banco;
    const FormLUScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(unisciScandendo(banco, forma));
    QVERIFY(scegli(banco, forma.TastieraNumericaScansione1, kConferma));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QCOMPARE(banco.suono.suonati.size(), 2);
  }

  void theLockedBoxTakesNothingThatIsTyped() {
    Banco banco;
    FormLUScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(unisciScandendo(banco, forma));
    forma.TestoInput.setFocus();
    banco.scrivi(QStringLiteral("37"));
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.TestoInput.text(), QString());
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
  }

  void thePrintPanelSilencesTheKeyboardAndClosingItGivesANewCase_data() {
    QTest::addColumn<bool>("unite");
    QTest::newRow("while a board is built") << false;
    QTest::newRow("while the result is written") << true;
  }
  void thePrintPanelSilencesTheKeyboardAndClosingItGivesANewCase() {
    QFETCH(bool, unite);
    Banco banco;
    FormLUScansione& forma = apriLU(banco, 24, 13);
    if (unite) QVERIFY(unisciScandendo(banco, forma));
    forma.mnuStampa.click();
    QVERIFY(!forma.TastieraHDUScansione1.Timer1.isEnabled());
    QVERIFY(!forma.TastieraNumericaScansione1.Timer1.isEnabled());
    banco.sorte.scrivi(caso(99, 27, 15));
    forma.CommandChiudi.click();
    QVERIFY(!forma.PictureStampa.isVisible());
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 27 +  15 = "));
    QVERIFY(forma.TastieraHDUScansione1.isVisible());
    QVERIFY(!forma.TastieraNumericaScansione1.isVisible());
    QVERIFY(forma.TastieraHDUScansione1.PictureScansione.hasFocus());
    QVERIFY(costruisciScandendo(banco, forma, 27));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(incorniciata(forma, forma.Label2));
  }

  void closingThePrintPanelInTheMiddleOfAWaitDropsTheCase_data() {
    QTest::addColumn<bool>("cambio");
    QTest::newRow("before the boards are joined") << false;
    QTest::newRow("in a carry") << true;
  }
  void closingThePrintPanelInTheMiddleOfAWaitDropsTheCase() {
    QFETCH(bool, cambio);
    Banco banco;
    FormLUScansione& forma = apriLU(banco, 27, 15);
    const auto traUnPo = [&] {
      banco.tempo.after(1.5, [&] {
        forma.mnuStampa.click();
        banco.sorte.scrivi(caso(99, 24, 13));
        forma.CommandChiudi.click();
      });
    };
    if (!cambio) {
      QVERIFY(costruisciScandendo(banco, forma, 27));
      QVERIFY(metti(banco, forma, TastieraHDUScansione::kDecine));
      QVERIFY(metti(banco, forma, TastieraHDUScansione::kUnita, 5));
      traUnPo();
      QVERIFY(metti(banco, forma, TastieraHDUScansione::kConferma));
    } else {
      QVERIFY(unisciScandendo(banco, forma));
      traUnPo();
      banco.batti(Qt::Key_Return);
    }
    banco.tempo.advance(10);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 24 +  13 = "));
    QVERIFY(!forma.PulsanteCambio.isVisible());
    QVERIFY(!forma.TestoInput.isVisible());
    QVERIFY(!forma.ShockwaveFlash3.isVisible());
    QVERIFY(!forma.TastieraNumericaScansione1.isVisible());
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("0da 0u"));
    QVERIFY(unisciScandendo(banco, forma));
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("3da 7u"));
    QVERIFY(rispondiScandendo(banco, forma, QStringLiteral("37")));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void upTo99ThePointersStayAsDesignedAndUpTo999TheyFollowTheSetting() {
    for (const bool diSistema : {false, true}) {
      Banco banco;
      banco.ambiente->stato.CursoreDiSistema = diSistema;
      QCOMPARE(apriLU(banco, 24, 13).PulsanteCambio.mousePointer(), 99);
      Banco altro;
      altro.ambiente->stato.CursoreDiSistema = diSistema;
      QCOMPARE(apriHLU(altro, 213, 45).PulsanteCambioDaH.mousePointer(), diSistema ? 0 : 99);
    }
  }

  void comingBackRestartsAtTheFirstBoardWithItsKeyboard() {
    Banco banco;
    const FormLUScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(unisciScandendo(banco, forma));
    banco.sorte.scrivi(caso(99, 27, 15));
    banco.riattiva();
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 27 +  15 = "));
    QVERIFY(forma.TastieraHDUScansione1.isVisible());
    QVERIFY(!forma.TastieraNumericaScansione1.isVisible());
    QVERIFY(costruisciScandendo(banco, forma, 27));
    QVERIFY(incorniciata(forma, forma.Label2));
  }

  void theWayOutLeadsToTheMenuOfTheBlocks() {
    Banco banco;
    apriLU(banco, 24, 13).mnuEsci.click();
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormMenuPLU"));
  }
};

QTEST_MAIN(FormaBlocchiScansioneTest)
#include "forma_blocchi_scansione_test.moc"
