#include "games/casi_tabella.h"

#include <QTest>
#include <set>

#include "../cases/scripted_chance.h"
#include "support/iscrizione.h"

namespace casi_tabella_test {

using somme::CasoTabella;
using somme::EstraiCasoTabella;

namespace {

constexpr int kEstrazioni = 100000;

}  // namespace

// The thirteen kinds of case on the addition table.
class CasiTabellaTest : public QObject {
  Q_OBJECT

  // The case of the given draws, which must all be used and suffice.
  static CasoTabella estrai(int tipo, const std::vector<Draw>& estrazioni) {
    ScriptedChance sorte(estrazioni);
    const std::optional<CasoTabella> caso = EstraiCasoTabella(sorte, tipo);
    if (!caso || !sorte.isUsedUp()) throw std::logic_error("draws are left, or no case came");
    return *caso;
  }

 private Q_SLOTS:
  void theResultsOfEachKindLieInItsBounds_data() {
    QTest::addColumn<int>("tipo");
    QTest::addColumn<int>("minimo");
    QTest::addColumn<int>("massimo");
    QTest::newRow("0") << 0 << 1 << 98;
    QTest::newRow("1") << 1 << 10 << 99;
    QTest::newRow("2") << 2 << -2 << 95;
    QTest::newRow("3") << 3 << 0 << 89;
    QTest::newRow("4") << 4 << -2 << 99;
    QTest::newRow("5") << 5 << 0 << 98;
    QTest::newRow("6") << 6 << 0 << 99;
    QTest::newRow("7") << 7 << 1 << 99;
    QTest::newRow("8") << 8 << 0 << 99;
    QTest::newRow("9") << 9 << 0 << 99;
    QTest::newRow("10") << 10 << 0 << 99;
    QTest::newRow("11") << 11 << 0 << 98;
    QTest::newRow("12") << 12 << 0 << 99;
  }
  void theResultsOfEachKindLieInItsBounds() {
    QFETCH(int, tipo);
    QFETCH(int, minimo);
    QFETCH(int, massimo);
    platform::SeededChance sorte(20071013);
    int trovatoMinimo = 1000;
    int trovatoMassimo = -1000;
    for (int i = 0; i < kEstrazioni; ++i) {
      const std::optional<CasoTabella> caso = EstraiCasoTabella(sorte, tipo);
      QVERIFY(caso.has_value());
      QCOMPARE(caso->risultato, caso->meno ? caso->a - caso->b : caso->a + caso->b);
      trovatoMinimo = std::min(trovatoMinimo, caso->risultato);
      trovatoMassimo = std::max(trovatoMassimo, caso->risultato);
    }
    QCOMPARE(trovatoMinimo, minimo);
    QCOMPARE(trovatoMassimo, massimo);
  }

  void addingOneOrTenTakesOneDraw() {
    QCOMPARE(estrai(0, {{97, 98}}), (CasoTabella{97, 1, false, 98}));
    QCOMPARE(estrai(1, {{89, 90}}), (CasoTabella{89, 10, false, 99}));
    QCOMPARE(estrai(1, {{0, 90}}), (CasoTabella{0, 10, false, 10}));
  }

  void takingOneAwayCanAskForACellThatDoesNotExist() {
    QCOMPARE(estrai(2, {{0, 98}}), (CasoTabella{-1, 1, true, -2}));
    QCOMPARE(estrai(2, {{1, 98}}), (CasoTabella{0, 1, true, -1}));
    QCOMPARE(estrai(2, {{97, 98}}), (CasoTabella{96, 1, true, 95}));
  }

  void takingTenAwayNeverFallsBelowNought() {
    QCOMPARE(estrai(3, {{0, 90}}), (CasoTabella{10, 10, true, 0}));
  }

  void addingUnitsCanAddNought() {
    QCOMPARE(estrai(5, {{57, 90}, {0, 10}}), (CasoTabella{57, 0, false, 57}));
    QCOMPARE(estrai(5, {{89, 90}, {9, 10}}), (CasoTabella{89, 9, false, 98}));
  }

  void addingTensAddsUpToNinety() {
    QCOMPARE(estrai(6, {{5, 90}, {9, 10}}), (CasoTabella{5, 90, false, 95}));
    QCOMPARE(estrai(6, {{5, 90}, {0, 10}}), (CasoTabella{5, 0, false, 5}));
  }

  void addingTensDrawsBothAgainWhenTheTableIsLeft() {
    QCOMPARE(estrai(6, {{89, 90}, {0, 10}}), (CasoTabella{89, 0, false, 89}));
    QCOMPARE(estrai(6, {{89, 90}, {2, 10}, {88, 90}, {9, 10}, {5, 90}, {3, 10}}),
             (CasoTabella{5, 30, false, 35}));
    // 99 is still on the table.
    QCOMPARE(estrai(6, {{89, 90}, {1, 10}}), (CasoTabella{89, 10, false, 99}));
  }

  void takingUnitsAwayStartsFromTenOrMore() {
    QCOMPARE(estrai(7, {{0, 90}, {9, 10}}), (CasoTabella{10, 9, true, 1}));
  }

  void takingTensAwayLosesTheTenInTheSecondDraw() {
    QCOMPARE(estrai(8, {{0, 90}, {9, 10}, {5, 90}, {0, 10}}), (CasoTabella{5, 0, true, 5}));
    QCOMPARE(estrai(8, {{80, 90}, {9, 10}}), (CasoTabella{90, 90, true, 0}));
  }

  void sumsDrawBothAgainWhenTheTableIsLeft() {
    QCOMPARE(estrai(10, {{98, 99}, {2, 99}, {3, 99}, {4, 99}}), (CasoTabella{3, 4, false, 7}));
    QCOMPARE(estrai(10, {{98, 99}, {1, 99}}), (CasoTabella{98, 1, false, 99}));
    QCOMPARE(estrai(10, {{1, 99}, {98, 99}}), (CasoTabella{1, 98, false, 99}));
  }

  void differencesTakeAwayLessThanThereIs() {
    QCOMPARE(estrai(11, {{50, 99}, {49, 50}}), (CasoTabella{50, 49, true, 1}));
    QCOMPARE(estrai(11, {{0, 99}, {0, 1}}), (CasoTabella{0, 0, true, 0}));
  }

  void theMixedKindsDrawWhichKindFirst() {
    QCOMPARE(estrai(4, {{0, 4}, {7, 98}}), (CasoTabella{7, 1, false, 8}));
    QCOMPARE(estrai(4, {{1, 4}, {7, 90}}), (CasoTabella{7, 10, false, 17}));
    QCOMPARE(estrai(4, {{2, 4}, {7, 98}}), (CasoTabella{6, 1, true, 5}));
    QCOMPARE(estrai(4, {{3, 4}, {7, 90}}), (CasoTabella{17, 10, true, 7}));
    QCOMPARE(estrai(9, {{0, 4}, {7, 90}, {2, 10}}), (CasoTabella{7, 2, false, 9}));
    QCOMPARE(estrai(9, {{1, 4}, {7, 90}, {2, 10}}), (CasoTabella{7, 20, false, 27}));
    QCOMPARE(estrai(9, {{2, 4}, {7, 90}, {2, 10}}), (CasoTabella{17, 2, true, 15}));
    QCOMPARE(estrai(9, {{3, 4}, {27, 90}, {2, 10}}), (CasoTabella{37, 20, true, 17}));
    QCOMPARE(estrai(12, {{0, 2}, {7, 99}, {2, 99}}), (CasoTabella{7, 2, false, 9}));
    QCOMPARE(estrai(12, {{1, 2}, {7, 99}, {2, 7}}), (CasoTabella{7, 2, true, 5}));
  }

  void anyOtherKindDrawsNothing() {
    for (const int tipo : {-1, 13, 77}) {
      ScriptedChance sorte{};
      QVERIFY(!EstraiCasoTabella(sorte, tipo).has_value());
    }
  }
};

const prova::Iscrizione<CasiTabellaTest> kIscritta;

}  // namespace casi_tabella_test

#include "casi_tabella_test.moc"
