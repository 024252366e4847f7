#include "tools/swf/percorso.h"

#include <QTest>
#include <cmath>

#include "support/iscrizione.h"

namespace percorso_test {

using namespace somme::swf;

class PercorsoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void closingDrawsBackToWhereThePencilWasPutDown() {
    const Percorso p = Percorso().vai({1, 2}).linea({5, 2}).vai({7, 7}).linea({9, 7}).chiudi();
    QCOMPARE(p.passi().back().fine.x, 7.0);
    QCOMPARE(p.passi().back().fine.y, 7.0);
  }

  void anEllipseKeepsToItsRadii() {
    const Percorso p = Percorso().ellisse({10, 20}, 30, 15);
    Punto qui = p.passi().front().fine;
    int curve = 0;
    for (const auto& passo : p.passi()) {
      if (passo.tipo != Percorso::Passo::Tipo::Curva) continue;
      ++curve;
      for (const double t : {0.0, 0.25, 0.5, 0.75, 1.0}) {
        const Punto su =
            qui * ((1 - t) * (1 - t)) + passo.controllo * (2 * t * (1 - t)) + passo.fine * (t * t);
        const double raggio = std::hypot((su.x - 10) / 30, (su.y - 20) / 15);
        QVERIFY2(std::abs(raggio - 1) < 0.0035, qPrintable(QString::number(raggio)));
      }
      qui = passo.fine;
    }
    QVERIFY(curve >= 8);
    QVERIFY(std::hypot(qui.x - 40, qui.y - 20) < 1e-9);
  }

  void aRoundedRectangleFillsItsRectangle() {
    const Rettangolo r = Percorso().rettangoloTondo({3, 4, 50, 20}, 6).ingombro();
    QVERIFY(std::abs(r.sinistra - 3) < 1e-9 && std::abs(r.alto - 4) < 1e-9);
    QVERIFY(std::abs(r.larghezza - 50) < 1e-9 && std::abs(r.altezza - 20) < 1e-9);
  }

  void anAddedPathIsScaledBeforeItIsMoved() {
    const Percorso p = Percorso().aggiungi(Percorso().vai({1, 1}).linea({2, 3}), {10, 20}, 5);
    QCOMPARE(p.passi()[1].fine.x, 20.0);
    QCOMPARE(p.passi()[1].fine.y, 35.0);
  }

  void theExtentHoldsControlPointsToo() {
    const Rettangolo r = Percorso().vai({0, 0}).curva({4, -6}, {8, 0}).ingombro();
    QCOMPARE(r.alto, -6.0);
    QCOMPARE(r.larghezza, 8.0);
  }
};

const prova::Iscrizione<PercorsoTest> kIscritta;

}  // namespace percorso_test

#include "percorso_test.moc"
