#include <QApplication>
#include <QImage>

#include "fondo_tastiera.h"
#include "input/tastiera_numerica_scansione.h"
#include "support/iscrizione.h"

namespace tasto_affondato_test {

using prova::prepara;
using somme::TastieraNumericaScansione;

namespace {

using Fondo = prova::FondoTastiera<TastieraNumericaScansione>;

}  // namespace

// How the keys of a scanning keyboard answer: to the switch that chooses one, and not to the mouse.
class TastoAffondatoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theLitKeySinksWhileTheKeyIsDownThatChoosesIt() {
    const auto foto = [](Fondo& fondo, int tasto) {
      return fondo.tastiera.PulsanteNumero[tasto].widget()->grab().toImage();
    };
    for (const bool automatica : {false, true}) {
      Fondo fondo;
      prepara(fondo.tastiera, automatica);
      fondo.passa(automatica ? 2.05 : 0);
      if (!automatica) fondo.spazio(2);
      const QImage ritta = foto(fondo, 2);
      const QImage altra = foto(fondo, 3);
      const int sceglie = automatica ? Qt::Key_Space : Qt::Key_Return;
      fondo.premi(sceglie);
      const QImage giu = foto(fondo, 2);
      QVERIFY(giu != ritta);
      const QColor faccia = giu.pixelColor(8, giu.height() / 2);
      QVERIFY(faccia.lightness() < ritta.pixelColor(8, giu.height() / 2).lightness());
      QCOMPARE(foto(fondo, 3), altra);
      fondo.lascia(sceglie);
      QCOMPARE(fondo.scelti(), std::vector<int>{2});
      QCOMPARE(foto(fondo, 2), ritta);
      // The other key chooses nothing, and sinks nothing.
      fondo.premi(automatica ? Qt::Key_Return : Qt::Key_Space);
      QCOMPARE(foto(fondo, 2), ritta);
    }
  }

  void aSunkKeyRisesWhereItsPressIsTakenBack() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    const auto foto = [&] { return fondo.tastiera.PulsanteNumero[0].widget()->grab().toImage(); };
    const QImage ritta = foto();
    fondo.premi(Qt::Key_Return);
    QVERIFY(foto() != ritta);
    fondo.tastiera.Disattiva();
    QCOMPARE(foto(), ritta);
  }

  void theLookOfAKeyDoesNotAnswerTheMouse() {
    Fondo fondo;
    prepara(fondo.tastiera, false);
    const QWidget* tasto = fondo.tastiera.PulsanteNumero[5].widget();
    const auto foto = [&] { return fondo.tastiera.PulsanteNumero[5].widget()->grab().toImage(); };
    const QImage prima = foto();
    const QPoint mezzo = tasto->mapTo(&fondo.fondo().window(), tasto->rect().center());
    QTest::mouseMove(fondo.finestra(), mezzo);
    QCoreApplication::processEvents();
    QCOMPARE(foto(), prima);
    QTest::mousePress(fondo.finestra(), Qt::LeftButton, {}, mezzo);
    QCOMPARE(foto(), prima);
    QTest::mouseRelease(fondo.finestra(), Qt::LeftButton, {}, mezzo);
  }
};

const prova::Iscrizione<TastoAffondatoTest, QApplication> kIscritta;

}  // namespace tasto_affondato_test

#include "tasto_affondato_test.moc"
