#include "blocchi_scanditi.h"

#include <QApplication>

#include "support/iscrizione.h"

namespace caso_blocchi_scansione_test {

using namespace prova;
using namespace prova::scanditi;
using somme::FormaBlocchiScansione;
using somme::TastieraHDUScansione;

// The course of a case of blocks by scanning: whole sums with their carries, a wrong result, the
// print panel, another activation.
class CasoBlocchiScansioneTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aWholeSumWithACarryByScanning_data() {
    QTest::addColumn<qint16>("modo");
    QTest::newRow("manual") << qint16(1);
    QTest::newRow("automatic") << qint16(2);
  }
  void aWholeSumWithACarryByScanning() {
    QFETCH(qint16, modo);
    Banco banco;
    const FormaBlocchiScansione& forma = apriLU(banco, 27, 15, modo);
    QVERIFY(unisciScandendo(banco, forma));
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("3da 12u"));
    QVERIFY(!forma.TastieraHDUScansione1.isVisible());
    QVERIFY(!forma.TastieraNumericaScansione1.isVisible());
    QVERIFY(forma.PulsanteCambio->isVisible());
    QVERIFY(forma.PulsanteCambio->hasFocus());
    banco.batti(modo == 1 ? Qt::Key_Return : Qt::Key_Space);
    QVERIFY(!forma.PulsanteCambio->isVisible());
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
    banco.sorte.scrivi(casoLU(24, 13));
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
    const FormaBlocchiScansione& forma = apriHLU(banco, 167, 258);
    QVERIFY(unisciScandendo(banco, forma));
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieHLU), QStringLiteral("3h 11da 15u"));
    QVERIFY(forma.PulsanteCambioUDa->hasFocus());
    banco.batti(Qt::Key_Space);
    QVERIFY(forma.PulsanteCambioDaH->isVisible());
    QVERIFY(forma.PulsanteCambioDaH->hasFocus());
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
    const FormaBlocchiScansione& forma = apriHLU(banco, 162, 253);
    QVERIFY(unisciScandendo(banco, forma));
    QVERIFY(!forma.PulsanteCambioUDa->isVisible());
    QVERIFY(forma.PulsanteCambioDaH->hasFocus());
  }

  void twelveUnitsAndNineTensAskForOneCarryOnly() {
    Banco banco;
    const FormaBlocchiScansione& forma = apriHLU(banco, 147, 255);
    QVERIFY(unisciScandendo(banco, forma));
    banco.batti(Qt::Key_Return);
    QVERIFY(!forma.PulsanteCambioDaH->isVisible());
    QVERIFY(forma.TastieraNumericaScansione1.isVisible());
  }

  void aWrongResultLeavesTheKeyboardRunningAndTheTextInTheBox() {
    Banco banco;
    const FormaBlocchiScansione& forma = apriLU(banco, 24, 13);
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

  void thePrintPanelSilencesTheKeyboardAndClosingItGivesANewCase_data() {
    QTest::addColumn<bool>("unite");
    QTest::newRow("while a board is built") << false;
    QTest::newRow("while the result is written") << true;
  }
  void thePrintPanelSilencesTheKeyboardAndClosingItGivesANewCase() {
    QFETCH(bool, unite);
    Banco banco;
    FormaBlocchiScansione& forma = apriLU(banco, 24, 13);
    if (unite) QVERIFY(unisciScandendo(banco, forma));
    forma.mnuStampa.click();
    QVERIFY(!forma.TastieraHDUScansione1.Timer1.isEnabled());
    QVERIFY(!forma.TastieraNumericaScansione1.Timer1.isEnabled());
    banco.sorte.scrivi(casoLU(27, 15));
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
    FormaBlocchiScansione& forma = apriLU(banco, 27, 15);
    const auto traUnPo = [&] {
      banco.tempo.after(1.5, [&] {
        forma.mnuStampa.click();
        banco.sorte.scrivi(casoLU(24, 13));
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
    QVERIFY(!forma.PulsanteCambio->isVisible());
    QVERIFY(!forma.TestoInput.isVisible());
    QVERIFY(!forma.ShockwaveFlash3.isVisible());
    QVERIFY(!forma.TastieraNumericaScansione1.isVisible());
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("0da 0u"));
    QVERIFY(unisciScandendo(banco, forma));
    QCOMPARE(contenuto(forma.ShockwaveFlash3, kSpecieLU), QStringLiteral("3da 7u"));
    QVERIFY(rispondiScandendo(banco, forma, QStringLiteral("37")));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void comingBackRestartsAtTheFirstBoardWithItsKeyboard() {
    Banco banco;
    const FormaBlocchiScansione& forma = apriLU(banco, 24, 13);
    QVERIFY(unisciScandendo(banco, forma));
    banco.sorte.scrivi(casoLU(27, 15));
    banco.riattiva();
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 27 +  15 = "));
    QVERIFY(forma.TastieraHDUScansione1.isVisible());
    QVERIFY(!forma.TastieraNumericaScansione1.isVisible());
    QVERIFY(costruisciScandendo(banco, forma, 27));
    QVERIFY(incorniciata(forma, forma.Label2));
  }
};

const prova::Iscrizione<CasoBlocchiScansioneTest, QApplication> kIscritta;

}  // namespace caso_blocchi_scansione_test

#include "caso_blocchi_scansione_test.moc"
