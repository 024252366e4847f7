#include <QApplication>

#include "blocchi_scanditi.h"
#include "platform/forms/controls/ring_widget.h"
#include "support/iscrizione.h"

namespace segno_del_cambio_test {

using namespace prova;
using namespace prova::scanditi;
using platform::RingWidget;

// What shows a pupil with one switch that the button of a carry is what his switch presses now.
class SegnoDelCambioTest : public QObject {
  Q_OBJECT

  // The rings on the screen, but for those of the keyboards.
  static QList<QRect> anelli(const platform::Button& pulsante) {
    QList<QRect> posti;
    const QWidget* intorno = pulsante.widget()->parentWidget();
    for (const auto* anello :
         intorno->findChildren<RingWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      if (anello->isVisible()) posti << anello->geometry();
    }
    return posti;
  }
  // One, round the button on all sides.
  static bool eSegnato(const platform::Button& pulsante) {
    const QList<QRect> posti = anelli(pulsante);
    const QRect dentro = pulsante.widget()->geometry();
    return posti.size() == 1 && posti[0].contains(dentro, true) &&
           posti[0].center() == dentro.center();
  }

 private Q_SLOTS:
  void theCarryBearsTheMarkOfAScannedKeyWhileTheSwitchPressesIt() {
    Banco banco({800, 600});
    auto& forma = apriLU(banco, 47, 35);
    QVERIFY(anelli(forma.PulsanteCambio.element()).isEmpty());
    QVERIFY(unisciScandendo(banco, forma));
    QVERIFY(forma.PulsanteCambio->hasFocus());
    QVERIFY(eSegnato(forma.PulsanteCambio.element()));
    QCOMPARE(forma.PulsanteCambio->backColor(), (platform::Rgb{255, 0, 0}));
    banco.ridimensiona({1024, 768});
    QVERIFY(eSegnato(forma.PulsanteCambio.element()));
    banco.batti(Qt::Key_Return);
    QVERIFY(!forma.PulsanteCambio->isVisible());
    QVERIFY(anelli(forma.PulsanteCambio.element()).isEmpty());
  }

  void theMarkGoesWithTheFocus() {
    Banco banco({800, 600});
    auto& forma = apriLU(banco, 47, 35);
    QVERIFY(unisciScandendo(banco, forma));
    forma.PulsanteCambio->widget()->clearFocus();
    QVERIFY(anelli(forma.PulsanteCambio.element()).isEmpty());
    forma.PulsanteCambio->setFocus();
    QVERIFY(eSegnato(forma.PulsanteCambio.element()));
  }

  void twoCarriesInARowAreMarkedEach() {
    Banco banco({800, 600});
    auto& forma = apriHLU(banco, 187, 245);
    QVERIFY(unisciScandendo(banco, forma));
    QVERIFY(eSegnato(forma.PulsanteCambioUDa.element()));
    banco.batti(Qt::Key_Return);
    QTRY_VERIFY(forma.PulsanteCambioDaH->hasFocus());
    QVERIFY(eSegnato(forma.PulsanteCambioDaH.element()));
  }
};

const prova::Iscrizione<SegnoDelCambioTest, QApplication> kIscritta;

}  // namespace segno_del_cambio_test

#include "segno_del_cambio_test.moc"
