#include <QApplication>
#include <QImage>

#include "abaco_scandito.h"
#include "abaco_toccato.h"
#include "support/iscrizione.h"

namespace palline_ferme_test {

using namespace prova;

// What the mouse over a bead promises. A bead waits there in every level; what is painted there is
// looked at, and the pointer.
class PallineFermeTest : public QObject {
  Q_OBJECT

  struct Sguardo {
    Qt::CursorShape puntatore;
    QImage dipinto;
  };

  template <class B>
  static Sguardo guarda(B& banco) {
    QWidget* tavola = banco.forma.ShockwaveFlash1.widget();
    QCoreApplication::processEvents();
    return {tavola->cursor().shape(), tavola->grab().toImage()};
  }
  template <class B>
  static QPoint pallina(B& banco) {
    const platform::Board& tavola = banco.forma.ShockwaveFlash1;
    const QRectF posto = Banco::filmato(tavola).clipPlace(QStringLiteral("ua5"));
    return tavola.widget()->mapTo(&banco.ambiente->fondo.window(), posto.center().toPoint());
  }
  // Far from every bead, over one, and with the mouse pressed there.
  template <class B>
  static std::array<Sguardo, 3> sotto(B& banco) {
    QTest::mouseMove(banco.finestra(), {1, 1});
    const Sguardo lontano = guarda(banco);
    QTest::mouseMove(banco.finestra(), pallina(banco));
    const Sguardo sopra = guarda(banco);
    QTest::mousePress(banco.finestra(), Qt::LeftButton, {}, pallina(banco));
    const Sguardo premuto = guarda(banco);
    QTest::mouseRelease(banco.finestra(), Qt::LeftButton, {}, pallina(banco));
    return {lontano, sopra, premuto};
  }
  template <class B>
  static void restaFerma(B& banco) {
    const auto [lontano, sopra, premuto] = sotto(banco);
    QVERIFY(sopra.puntatore != Qt::PointingHandCursor);
    QVERIFY(premuto.puntatore != Qt::PointingHandCursor);
    QCOMPARE(sopra.dipinto, lontano.dipinto);
    QCOMPARE(premuto.dipinto, lontano.dipinto);
  }

 private Q_SLOTS:
  void aBeadThatCanBeClickedShowsAHandAndSinks() {
    BancoDellAbaco<somme::FormaAbacoTastiera> banco(somme::forme::kFormAbaco, 3,
                                                    BancoHK::caso(3, 82, 47), 0);
    const auto [lontano, sopra, premuto] = sotto(banco);
    QVERIFY(lontano.puntatore != Qt::PointingHandCursor);
    QCOMPARE(sopra.puntatore, Qt::PointingHandCursor);
    QVERIFY(sopra.dipinto != lontano.dipinto);
    QVERIFY(premuto.dipinto != sopra.dipinto);
  }

  void whereKeysScanABeadPromisesNothingToTheMouse() {
    BancoScansione banco(3, BancoScansione::caso(3, 82, 47));
    restaFerma(banco);
  }

  void whereTheSheetIsTouchedABeadPromisesNothingToTheMouse() {
    BancoHK banco(3, BancoHK::caso(3, 82, 47));
    restaFerma(banco);
  }
};

const prova::Iscrizione<PallineFermeTest, QApplication> kIscritta;

}  // namespace palline_ferme_test

#include "palline_ferme_test.moc"
