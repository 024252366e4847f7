#include "bench/figura.h"

#include <QTest>

#include "support/iscrizione.h"

namespace figura_test {

using bench::alPiu;
using bench::riga;
using bench::sotto;

class FiguraTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void cleanup() { qunsetenv("MISURA_BREVE"); }

  // misura_prova.py reads the same lines.
  void aFigureIsALineOfFieldsBetweenTabs() {
    QCOMPARE(riga({"showing a form", "FormLU", 1.25, "times plain widgets", alPiu(2)}),
             std::string("figure\tshowing a form\tFormLU\t1.25\ttimes plain widgets\tat most\t2"));
  }

  void whereThereIsOneThingOnlyAFieldIsEmpty() {
    QCOMPARE(riga({"at rest", "", 0.5, "wake-ups a second", sotto(1)}),
             std::string("figure\tat rest\t\t0.5\twake-ups a second\tunder\t1"));
  }

  void aValueJustBeyondItsLimitIsNotRoundedToIt() {
    QCOMPARE(riga({"heap", "", 1.05000001, "times", alPiu(1.05)}),
             std::string("figure\theap\t\t1.05000001\ttimes\tat most\t1.05"));
  }

  void theShortFormAsksForFewerRepetitions() {
    QCOMPARE(bench::quanti(20, 3), 20);
    qputenv("MISURA_BREVE", "1");
    QCOMPARE(bench::quanti(20, 3), 3);
    QCOMPARE(bench::quanti(10.0, 2.5), 2.5);
  }

  void theMedianIsTheMiddleOfWhatWasMeasured() {
    QCOMPARE(bench::mediana({9, 1, 5}), 5.0);
    QCOMPARE(bench::mediana({7}), 7.0);
  }

  void aQuantileStaysWithinWhatWasMeasured() {
    std::vector<double> valori;
    for (int i = 100; i > 0; --i) valori.push_back(i);
    QCOMPARE(bench::quantile(valori, 0.95), 96.0);
    QCOMPARE(bench::quantile(valori, 1), 100.0);
    QCOMPARE(bench::quantile(valori, 0), 1.0);
  }
};

const prova::Iscrizione<FiguraTest> kIscritta;

}  // namespace figura_test

#include "figura_test.moc"
