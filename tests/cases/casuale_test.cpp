#include "cases/casuale.h"

#include <QTest>
#include <array>

#include "scripted_chance.h"
#include "support/iscrizione.h"

namespace casuale_test {

using somme::Casuale;

namespace {

// The largest fraction that a source can give.
constexpr float kAlmostOne = 1.0F - 0x1.0p-24F;

ScriptedChance always(float fraction) {
  ScriptedChance chance{};
  chance.thenEver(fraction, 100);
  return chance;
}

}  // namespace

class CasualeTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void casualeOfOneAndOfZeroIsZeroAlways() {
    for (const float fraction : {0.0F, 0.5F, kAlmostOne}) {
      ScriptedChance chance = always(fraction);
      QCOMPARE(Casuale(chance, 1), 0);
      QCOMPARE(Casuale(chance, 0), 0);
    }
  }

  void theLargestFractionGivesOneLessThanTheNumber() {
    ScriptedChance chance = always(kAlmostOne);
    for (const int n : {2, 10, 99, 9888, 9999, 1 << 24}) QCOMPARE(Casuale(chance, n), n - 1);
  }

  void theFractionIsCutDownAndNotRounded() {
    ScriptedChance chance = always(0.19F);
    QCOMPARE(Casuale(chance, 10), 1);
  }

  void theFractionIsMultipliedInSixtyFourBits() {
    // In 32 bits the product is 7, in 64 just below it.
    constexpr float kFraction = 0.7F;
    static_assert(kFraction * 10.0F == 7.0F && static_cast<double>(kFraction) * 10.0 < 7.0);
    ScriptedChance chance = always(kFraction);
    QCOMPARE(Casuale(chance, 10), 6);
  }

  void everyNumberBelowIsDrawnAsOften() {
    platform::SeededChance chance(2007);
    std::array<int, 10> counts{};
    for (int i = 0; i < 100'000; ++i) ++counts.at(static_cast<std::size_t>(Casuale(chance, 10)));
    for (const int count : counts) QVERIFY(count > 9'600 && count < 10'400);
  }
};

const prova::Iscrizione<CasualeTest> kIscritta;

}  // namespace casuale_test

#include "casuale_test.moc"
