#include "platform/flash/budget.h"

#include <QTest>

#include "costly.h"
#include "platform/flash/limits.h"
#include "scripts.h"
#include "support/iscrizione.h"

namespace budget_test {

using platform::flash::Budget;
using platform::flash::Property;
using namespace scripts;

namespace {

// A clock that goes on by a second whenever somebody looks at it.
Budget::Clock hastyClock(int& looks) {
  return [&looks] { return std::int64_t{1000} * ++looks * platform::flash::limits::kMillisecond; };
}

// Actions for ever, after the host has been told something.
QByteArray endless() {
  return tell("before") + action(0x99, u16(0x10000 - 5));
}

}  // namespace

// What a step of a movie may cost.
class BudgetTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void workIsTakenUntilNoneIsLeftAndAStepBeginsAnew() {
    Budget budget([] { return std::int64_t(0); });
    QVERIFY(budget.isSpent());
    budget.begin({100, 1000, 1000});
    QVERIFY(budget.spend(60));
    QVERIFY(!budget.isSpent());
    QVERIFY(!budget.spend(60));
    QVERIFY(budget.isSpent());
    QVERIFY(!budget.spend(0));
    budget.begin({100, 1000, 1000});
    QVERIFY(budget.spend(99));
    QVERIFY(!budget.spend(1));
  }

  void memoryThatIsNotThereEndsTheStepAsWell() {
    Budget budget([] { return std::int64_t(0); });
    budget.begin({100, 1000, 1000});
    QVERIFY(budget.hold(1000));
    QVERIFY(!budget.hold(1));
    QVERIFY(budget.isSpent());
    QVERIFY(!budget.spend(1));
  }

  void theClockEndsAStepWhoseWorkWasCountedTooLow() {
    std::int64_t now = 5;
    Budget budget([&] { return now; });
    budget.begin({100'000'000, 1000, 1000});
    QVERIFY(budget.spend(10'000'000));
    now += 999;
    QVERIFY(budget.spend(10'000'000));
    now += 1;
    QVERIFY(!budget.spend(10'000'000));
    QVERIFY(budget.isSpent());
  }

  void theClockIsLookedAtNowAndThenOnly() {
    int looks = 0;
    Budget budget([&] { return std::int64_t(++looks); });
    budget.begin({50'000'000, 1'000'000, 0});
    while (budget.spend(100)) {
    }
    QVERIFY2(looks > 20 && looks < 100, qPrintable(QString::number(looks)));
  }

  void aSlowComputerEndsAScriptByTheClock() {
    QStringList told;
    int looks = 0;
    Player player(
        movie(file(doAction(endless()) + showFrame() + showFrame(), 6, 9, 9, 2)),
        [&](const QString& command, const QString&) { told << command; }, hastyClock(looks));
    QCOMPARE(told, QStringList{QStringLiteral("before")});
    QCOMPARE(looks, 2);
    QVERIFY(player.wasCutOff());
  }

  void aStageThatIsFullEndsTheStep() {
    // Sprites of 16 of the one before: 4,369 are let stand, 69,905 are not.
    QByteArray tags = square(1, 20, 0);
    for (unsigned id = 2; id <= 5; ++id) {
      QByteArray inside;
      for (unsigned depth = 1; depth <= 16; ++depth) inside += place(depth, id - 1);
      tags += sprite(id, inside + showFrame());
    }
    const Player few(movie(file(tags + place(1, 4) + showFrame(), 6)), [](auto&&...) {});
    QVERIFY(!few.wasCutOff());
    const Player many(movie(file(tags + place(1, 5) + showFrame(), 6)), [](auto&&...) {});
    QVERIFY(many.wasCutOff());
    QVERIFY(many.scene().isWhole);
  }

  void aPictureThatIsFullEndsTheStep_data() {
    QTest::addColumn<bool>("masked");
    QTest::newRow("of things") << false;
    QTest::newRow("of things and the parts of their mask") << true;
  }
  void aPictureThatIsFullEndsTheStep() {
    QFETCH(bool, masked);
    // Eight parts each: 50,000 are shown, 50,008 are not.
    constexpr std::size_t kMost = 50'000;
    for (const unsigned squares : {6250U, 6251U}) {
      const Player player(
          movie(costly::squaresBeside(squares, masked)), [](auto&&...) {},
          [] { return std::int64_t(0); });
      QVERIFY(!player.wasCutOff());
      const platform::flash::Scene scene = player.scene();
      QCOMPARE(scene.items.size() + (masked ? scene.masks.front().parts.size() : 0), kMost);
      QCOMPARE(scene.isWhole, squares == 6250);
    }
  }

  void aMovieThatWasCutOffStandsStillAndOnlyTheHostMovesIt() {
    QStringList told;
    Player player(movie(file(sprite(1, showFrame()) + place(1, 1, 0, 0, "c") + doAction(endless()) +
                                 showFrame() + doAction(tell("two")) + showFrame() + showFrame(),
                             6, 9, 9, 3)),
                  [&](const QString& command, const QString&) { told << command; });
    QVERIFY(player.wasCutOff());
    QVERIFY(!player.canChange());
    player.tick();
    QCOMPARE(player.currentFrame(), 1);
    player.gotoFrame(2);
    QCOMPARE(player.currentFrame(), 2);
    player.setProperty(QStringLiteral("c"), Property::Visible, QStringLiteral("0"));
    QCOMPARE(player.property(QStringLiteral("c"), Property::Visible), QStringLiteral("0"));
    QCOMPARE(told, QStringList{QStringLiteral("before")});
  }

  void aMovieThatTakesTooLongToLoadIsThereAsFarAsItWasRead() {
    const QByteArray bytes =
        file(square(1, 10, 0) + place(1, 1) + showFrame() + tag(999, QByteArray(2 << 20, 'x')) +
                 square(2, 10, 0) + place(2, 2) + showFrame(),
             6, 9, 9, 2);
    int looks = 0;
    const auto read = platform::flash::readMovie(bytesOf(bytes), hastyClock(looks));
    QVERIFY(read->cutOff);
    QCOMPARE(read->timeline.frameCount(), 1);
    QVERIFY(read->character(1) != nullptr);
    QVERIFY(!movie(bytes)->cutOff);
  }
};

const prova::Iscrizione<BudgetTest> kIscritta;

}  // namespace budget_test

#include "budget_test.moc"
