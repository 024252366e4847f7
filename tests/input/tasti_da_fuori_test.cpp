#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QMessageBox>

#include "fondo_tastiera.h"
#include "input/tastiera_numerica_scansione.h"
#include "support/iscrizione.h"

namespace tasti_da_fuori_test {

using prova::prepara;
using somme::TastieraNumericaScansione;

namespace {

using Fondo = prova::FondoTastiera<TastieraNumericaScansione>;

// Taps a key of the keyboard by the actions of assistive technology.
void tocca(Fondo& fondo, const char* tasto) {
  QAccessibleInterface* tastiera =
      QAccessible::queryAccessibleInterface(fondo.tastiera.PictureScansione.widget());
  tastiera->actionInterface()->doAction(QString::fromLatin1(tasto));
  QCoreApplication::processEvents();
}

}  // namespace

// The switch keys of the scanning keyboards, worked without any key by assistive technology.
class TastiDaFuoriTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theKeyboardOffersItsTwoKeys() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    QAccessibleInterface* tastiera =
        QAccessible::queryAccessibleInterface(fondo.tastiera.PictureScansione.widget());
    const QStringList azioni = tastiera->actionInterface()->actionNames();
    QCOMPARE(azioni.mid(0, 2), (QStringList{QStringLiteral("Space"), QStringLiteral("Enter")}));
    QVERIFY(azioni.contains(QAccessibleActionInterface::setFocusAction()));
  }

  void inManualModeOneStepsAndTheOtherChooses() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    tocca(fondo, "Space");
    tocca(fondo, "Space");
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(2));
    QVERIFY(fondo.scelti().empty());
    tocca(fondo, "Enter");
    QCOMPARE(fondo.scelti(), std::vector<int>{2});
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(2));
  }

  void inAutomaticModeOneChoosesAndTheScanGoesOn() {
    Fondo fondo;
    prepara(fondo.tastiera, true);
    fondo.passa(2.05);
    tocca(fondo, "Enter");
    QVERIFY(fondo.scelti().empty());
    tocca(fondo, "Space");
    QCOMPARE(fondo.scelti(), std::vector<int>{2});
    QVERIFY(fondo.tastiera.TimerScansione.isEnabled());
  }

  void nothingIsChosenWhereAKeyWouldNotCome() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    {
      QMessageBox riquadro(&fondo.fondo().window());
      riquadro.open();
      tocca(fondo, "Space");
      QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(0));
    }
    QCoreApplication::processEvents();
    {
      QMenu menu(&fondo.fondo().window());
      menu.popup({});
      tocca(fondo, "Space");
      QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(0));
    }
    fondo.tastiera.Disattiva();
    fondo.forma().Casella.setFocus();
    tocca(fondo, "Space");
    tocca(fondo, "Enter");
    QCOMPARE(fondo.tastiera.pulsanteAcceso(), qint16(0));
    QVERIFY(fondo.scelti().empty());
  }

  void aKeyboardThatIsLeftInItsOwnChoiceDoesNotMind() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    fondo.forma().allaScelta = [&fondo](qint16) { fondo.tastiera.setVisible(false); };
    tocca(fondo, "Enter");
    QCOMPARE(fondo.scelti(), std::vector<int>{0});
    tocca(fondo, "Enter");
    QCOMPARE(fondo.scelti(), std::vector<int>{0});
  }
};

const prova::Iscrizione<TastiDaFuoriTest, QApplication> kIscritta;

}  // namespace tasti_da_fuori_test

#include "tasti_da_fuori_test.moc"
