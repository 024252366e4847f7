#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include "fondo_tastiera.h"
#include "input/tastiera_numerica_scansione.h"
#include "platform/forms/accessible.h"
#include "platform/forms/text_block.h"
#include "support/iscrizione.h"

namespace fuoco_di_scansione_test {

using prova::AltraFinestra;
using prova::prepara;
using somme::TastieraNumericaScansione;

namespace {

using Fondo = prova::FondoTastiera<TastieraNumericaScansione>;

}  // namespace

// The focus of the scanning keyboards: their hold on it, and where it is seen and heard, on the lit
// key. The engine is one; it is tried on the keyboard of digits.
class FuocoDiScansioneTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
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

const prova::Iscrizione<FuocoDiScansioneTest, QApplication> kIscritta;

}  // namespace fuoco_di_scansione_test

#include "fuoco_di_scansione_test.moc"
