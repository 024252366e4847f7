#include <QApplication>
#include <QMenu>

#include "fondo_tastiera.h"
#include "input/tastiera_numerica_scansione.h"
#include "support/iscrizione.h"

namespace tasti_di_scansione_test {

using prova::AltraFinestra;
using prova::prepara;
using somme::TastieraNumericaScansione;

namespace {

using Fondo = prova::FondoTastiera<TastieraNumericaScansione>;

}  // namespace

// The switch keys of the scanning keyboards. The engine is one; it is tried on the keyboard of
// digits.
class TastiDiScansioneTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void inManualModeSpaceStepsAndEnterChoosesAtTheRelease() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    fondo.premi(Qt::Key_Space);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(0));
    fondo.lascia(Qt::Key_Space);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(1));
    fondo.premi(Qt::Key_Return);
    QVERIFY(fondo.scelti().empty());
    fondo.lascia(Qt::Key_Return);
    QCOMPARE(fondo.scelti(), std::vector<int>{1});
    fondo.batti(Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(fondo.scelti(), (std::vector<int>{1, 1}));
    fondo.passa(10);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(1));
  }

  void inAutomaticModeThePressHoldsTheLightAndTheReleaseChooses() {
    Fondo fondo;
    prepara(fondo.tastiera, true);
    fondo.passa(2.05);
    fondo.premi(Qt::Key_Space);
    QVERIFY(!fondo.tastiera.TimerScansione.isEnabled());
    fondo.passa(7);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(2));
    QVERIFY(fondo.scelti().empty());
    fondo.lascia(Qt::Key_Space);
    QCOMPARE(fondo.scelti(), std::vector<int>{2});
    QVERIFY(fondo.tastiera.TimerScansione.isEnabled());
  }

  void inAutomaticModeEnterDoesNothing() {
    Fondo fondo;
    prepara(fondo.tastiera, true);
    fondo.invio();
    QVERIFY(fondo.scelti().empty());
    QVERIFY(fondo.tastiera.TimerScansione.isEnabled());
  }

  void otherKeysDoNothing() {
    for (const bool automatica : {false, true}) {
      Fondo fondo;
      prepara(fondo.tastiera, automatica);
      for (const int tasto : {Qt::Key_A, Qt::Key_5, Qt::Key_Backspace, Qt::Key_Escape, Qt::Key_Left,
                              Qt::Key_Right, Qt::Key_F5}) {
        fondo.batti(tasto);
      }
      fondo.batti(Qt::Key_Space, Qt::ControlModifier);
      QVERIFY(fondo.scelti().empty());
      QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(0));
      QCOMPARE(fondo.tastiera.TimerScansione.isEnabled(), automatica);
    }
  }

  void aHeldKeyStepsOnceAndChoosesOnce() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    fondo.premi(Qt::Key_Space);
    for (int i = 0; i < 30; ++i) fondo.ripeti(Qt::Key_Space);
    fondo.lascia(Qt::Key_Space);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(1));
    fondo.premi(Qt::Key_Return);
    for (int i = 0; i < 30; ++i) fondo.ripeti(Qt::Key_Return);
    fondo.lascia(Qt::Key_Return);
    QCOMPARE(fondo.scelti(), std::vector<int>{1});
    fondo.tastiera.ScansioneAutomatica.set(true);
    fondo.premi(Qt::Key_Space);
    for (int i = 0; i < 30; ++i) fondo.ripeti(Qt::Key_Space);
    fondo.lascia(Qt::Key_Space);
    QCOMPARE(fondo.scelti().size(), 2U);
  }

  void everyTapCountsAlsoOneThatIsOverBeforeTheFirstTick() {
    Fondo fondo;
    fondo.forma().Casella.setFocus();
    prepara(fondo.tastiera, false);
    // No time passes, so that no timer has ticked.
    for (int i = 1; i <= 10; ++i) {
      fondo.spazio();
      QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(i));
    }
  }

  void theFocusLostWhileSpaceHoldsAnAutomaticScanChoosesNothingAndTheScanGoesOn() {
    Fondo fondo;
    prepara(fondo.tastiera, true);
    fondo.passa(1.05);
    fondo.premi(Qt::Key_Space);
    AltraFinestra altra;
    QVERIFY(fondo.tastiera.TimerScansione.isEnabled());
    fondo.passa(1.05);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(2));
    altra.torna(fondo.fondo().window());
    for (int i = 0; i < 5; ++i) fondo.ripeti(Qt::Key_Space);
    fondo.lascia(Qt::Key_Space);
    QVERIFY(fondo.scelti().empty());
    // The next press works at once.
    fondo.passa(0.05);
    fondo.spazio();
    QCOMPARE(fondo.scelti(), std::vector<int>{2});
  }

  void theFocusLostWhileAKeyIsHeldInManualModeNeitherStepsNorChooses() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    for (const int tasto : {Qt::Key_Space, Qt::Key_Return}) {
      fondo.premi(tasto);
      AltraFinestra altra;
      altra.torna(fondo.fondo().window());
      fondo.passa(0.05);
      fondo.lascia(tasto);
      QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(0));
      QVERIFY(fondo.scelti().empty());
    }
    QVERIFY(!fondo.tastiera.TimerScansione.isEnabled());
  }

  void aMenuThatOpensWhileSpaceHoldsAnAutomaticScanLetsItGoOn() {
    Fondo fondo;
    prepara(fondo.tastiera, true);
    fondo.premi(Qt::Key_Space);
    QMenu menu(&fondo.fondo().window());
    menu.addAction(QStringLiteral("voce"));
    menu.popup({0, 0});
    QCoreApplication::processEvents();
    fondo.lascia(Qt::Key_Space);
    QVERIFY(fondo.scelti().empty());
    QVERIFY(fondo.tastiera.TimerScansione.isEnabled());
    menu.close();
  }

  void aReleaseWhosePressTheKeyboardNeverHadChoosesNothing() {
    Fondo fondo;
    fondo.tastiera.ScansioneAutomatica.set(false);
    fondo.forma().Casella.setFocus();
    fondo.premi(Qt::Key_Return);
    prepara(fondo.tastiera, false);
    fondo.passa(0.05);
    QVERIFY(fondo.tastiera.PictureScansione.hasFocus());
    fondo.lascia(Qt::Key_Return);
    QVERIFY(fondo.scelti().empty());
  }

  void whatIsPressedWhileAChoiceIsHandledIsNotQueued() {
    for (const bool automatica : {false, true}) {
      Fondo fondo;
      prepara(fondo.tastiera, automatica);
      const int tasto = automatica ? Qt::Key_Space : Qt::Key_Return;
      fondo.forma().allaScelta = [&fondo, tasto](qint16) {
        for (int i = 0; i < 10; ++i) fondo.batti(tasto);
        fondo.spazio();
        // Held over the end of the choice: of a press that nobody heard.
        fondo.premi(tasto);
      };
      fondo.batti(tasto);
      fondo.forma().allaScelta = nullptr;
      fondo.lascia(tasto);
      QCOMPARE(fondo.scelti(), std::vector<int>{0});
      QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(0));
      QCOMPARE(fondo.tastiera.TimerScansione.isEnabled(), automatica);
      fondo.batti(tasto);
      QCOMPARE(fondo.scelti(), (std::vector<int>{0, 0}));
    }
  }

  void noTickComesWhileTheChoiceIsHandled() {
    Fondo fondo;
    prepara(fondo.tastiera, true);
    int acceso = -1;
    fondo.forma().allaScelta = [&](qint16) {
      fondo.passa(5);
      acceso = fondo.tastiera.pulsanteAcceso();
    };
    fondo.spazio();
    QCOMPARE(acceso, 0);
    fondo.passa(1.05);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(1));
  }

  void afterAChoiceTheFirstLightStaysAFullPeriod() {
    Fondo fondo;
    prepara(fondo.tastiera, true);
    fondo.passa(3.9);
    fondo.spazio();
    fondo.passa(0.98);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(3));
    fondo.passa(0.04);
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(4));
  }

  void aClickOfTheMouseOnAButtonDoesNothing() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    for (int i = 0; i < 14; ++i) fondo.clicca(fondo.tastiera.PulsanteNumero[i]);
    QVERIFY(fondo.scelti().empty());
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(0));
    QVERIFY(fondo.tastiera.PictureScansione.hasFocus());
  }
};

const prova::Iscrizione<TastiDiScansioneTest, QApplication> kIscritta;

}  // namespace tasti_di_scansione_test

#include "tasti_di_scansione_test.moc"
