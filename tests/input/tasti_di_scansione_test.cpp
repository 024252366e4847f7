#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include "fondo_tastiera.h"
#include "input/tastiera_numerica_scansione.h"
#include "platform/forms/accessible.h"
#include "platform/forms/controls/ring_widget.h"
#include "platform/forms/text_block.h"
#include "support/iscrizione.h"

namespace tasti_di_scansione_test {

using prova::prepara;
using somme::TastieraNumericaScansione;

namespace {

using Fondo = prova::FondoTastiera<TastieraNumericaScansione>;

// Another window of the desktop that takes the keyboard while it lives.
class AltraFinestra {
 public:
  AltraFinestra() {
    finestra_.show();
    finestra_.activateWindow();
    QCoreApplication::processEvents();
  }
  void torna(platform::Window& nostra) {
    finestra_.hide();
    nostra.activateWindow();
    QCoreApplication::processEvents();
  }

 private:
  QWidget finestra_;
};

}  // namespace

// The switch keys of the scanning keyboards, their hold on the focus, and what is seen and heard of
// the light. The engine is one; it is tried on the keyboard of digits.
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

  void theFocusComesBackWithinATickFromWhereverItWent() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    QVERIFY(fondo.tastiera.PictureScansione.hasFocus());
    fondo.clicca(fondo.forma().Casella);
    QVERIFY(!fondo.tastiera.PictureScansione.hasFocus());
    fondo.passa(0.011);
    QVERIFY(fondo.tastiera.PictureScansione.hasFocus());
    fondo.tastiera.Disattiva();
    fondo.forma().Casella.setFocus();
    fondo.passa(1);
    QVERIFY(!fondo.tastiera.PictureScansione.hasFocus());
  }

  void theFocusIsNeverTakenFromAnotherWindowOrAMenu() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    {
      AltraFinestra altra;
      fondo.passa(1);
      QVERIFY(!fondo.fondo().window().isActiveWindow());
      altra.torna(fondo.fondo().window());
    }
    fondo.clicca(fondo.forma().Casella);
    QMenu menu(&fondo.fondo().window());
    menu.addAction(QStringLiteral("voce"));
    menu.popup({0, 0});
    fondo.passa(1);
    QVERIFY(menu.isVisible());
    QVERIFY(!fondo.tastiera.PictureScansione.hasFocus());
    menu.close();
    fondo.passa(0.05);
    QVERIFY(fondo.tastiera.PictureScansione.hasFocus());
    QMenuBar barra(&fondo.fondo().window());
    barra.addMenu(QStringLiteral("voci"));
    barra.setFocusPolicy(Qt::StrongFocus);
    barra.show();
    barra.setFocus();
    fondo.passa(1);
    QVERIFY(barra.hasFocus());
  }

  void atRestNothingLooksWhereTheFocusIs() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    QVERIFY(fondo.tastiera.Timer1.isEnabled());
    fondo.passa(0.02);
    QVERIFY(!fondo.tempo.anyTicker());
    fondo.clicca(fondo.forma().Casella);
    fondo.passa(0.02);
    QVERIFY(fondo.tastiera.PictureScansione.hasFocus());
    QVERIFY(!fondo.tempo.anyTicker());
  }

  void aHiddenKeyboardTakesNoFocusAndAsksForNoneInVain() {
    Fondo fondo;
    fondo.tastiera.setVisible(false);
    fondo.forma().Casella.setFocus();
    prepara(fondo.tastiera, false);
    fondo.passa(1);
    QVERIFY(fondo.forma().Casella.hasFocus());
  }

  void aClickOfTheMouseOnAButtonDoesNothing() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    for (int i = 0; i < 14; ++i) fondo.clicca(fondo.tastiera.PulsanteNumero[i]);
    QVERIFY(fondo.scelti().empty());
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(0));
    QVERIFY(fondo.tastiera.PictureScansione.hasFocus());
  }

  void theRingIsEightPixelsThickAndStandsOutFromKeyNeighboursAndGround() {
    for (const QSize lato : {QSize(640, 448), QSize(1000, 700), QSize(2000, 1400)}) {
      Fondo fondo;
      fondo.ridimensiona(lato);
      prepara(fondo.tastiera, false);
      fondo.spazio(4);
      const QWidget* tasto = fondo.tastiera.PulsanteNumero[4].widget();
      const QImage foto = fondo.fondo().window().grab().toImage();
      const QPoint centro = tasto->mapTo(&fondo.fondo().window(), tasto->rect().center());
      const QColor nero(Qt::black);
      // From the middle of the key upwards, clear of its figure: red, then the ring.
      const int x = centro.x() - tasto->width() / 4;
      int spesso = 0;
      for (int y = centro.y(); y > centro.y() - tasto->height(); --y) {
        if (foto.pixelColor(x, y) == nero) ++spesso;
      }
      QVERIFY2(spesso >= 8, qPrintable(QString::number(spesso)));
      QVERIFY(platform::contrast(nero, QColor(224, 224, 224)) > 3);
      QVERIFY(platform::contrast(nero, QColor(255, 0, 0)) > 3);
      // Round the neighbour there is none.
      const QWidget* vicino = fondo.tastiera.PulsanteNumero[7].widget();
      const QPoint mezzo = vicino->mapTo(&fondo.fondo().window(), vicino->rect().center());
      for (int y = mezzo.y() - vicino->height(); y < mezzo.y() - vicino->height() / 3; ++y) {
        QVERIFY(foto.pixelColor(mezzo.x(), y) != nero);
      }
    }
  }

  // That each step is told as an event is heard by the test in a real window.
  void assistiveTechnologyFindsTheFocusOnTheLitButton() {
    Fondo fondo;
    fondo.tastiera.DaiNome(10, QStringLiteral("Cancella"));
    prepara(fondo.tastiera, true);
    const auto interfaccia = [](const platform::Control& controllo) {
      return QAccessible::queryAccessibleInterface(controllo.widget());
    };
    for (int i = 0; i <= 12; ++i) {
      const QWidget* acceso = fondo.tastiera.PulsanteNumero[i].widget();
      QCOMPARE(static_cast<const QWidget*>(platform::focusSpoken()), acceso);
      fondo.tastiera.PulsanteNumero.forEach([&](const platform::Button& pulsante) {
        QCOMPARE(bool(interfaccia(pulsante)->state().focused), pulsante.index() == i);
      });
      QVERIFY(!interfaccia(fondo.tastiera.PictureScansione)->state().focused);
      QVERIFY(interfaccia(fondo.tastiera.PictureScansione)->focusChild()->object() == acceso);
      fondo.passa(1.001);
    }
    QCOMPARE(interfaccia(fondo.tastiera.PulsanteNumero[3])->text(QAccessible::Name),
             QStringLiteral("3"));
    QCOMPARE(interfaccia(fondo.tastiera.PulsanteNumero[10])->text(QAccessible::Name),
             QStringLiteral("Cancella"));
    QCOMPARE(interfaccia(fondo.tastiera.PictureScansione)->text(QAccessible::Name),
             QStringLiteral("Tasti"));
    // While something else has the focus, none of them has.
    fondo.forma().Casella.setFocus();
    QVERIFY(!interfaccia(fondo.tastiera.PulsanteNumero[0])->state().focused);
  }

  void theButtonsOfferNoPressToAssistiveTechnology() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    QAccessibleInterface* tasto =
        QAccessible::queryAccessibleInterface(fondo.tastiera.PulsanteNumero[3].widget());
    QVERIFY(!tasto->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
  }

  void aVerdictIsToldOnceAndStaysWithNoKey() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    fondo.forma().announce(QStringLiteral("Giusto. Esatti 1"));
    fondo.tastiera.AttivaAvanti();
    fondo.tastiera.DisattivaAvanti();
    fondo.spazio();
    QCOMPARE(fondo.annunci.detti, QStringList{QStringLiteral("Giusto. Esatti 1")});
    for (int i = 0; i < 14; ++i) {
      QCOMPARE(fondo.tastiera.PulsanteNumero[i].widget()->accessibleDescription(), QString());
    }
  }
};

const prova::Iscrizione<TastiDiScansioneTest, QApplication> kIscritta;

}  // namespace tasti_di_scansione_test

#include "tasti_di_scansione_test.moc"
