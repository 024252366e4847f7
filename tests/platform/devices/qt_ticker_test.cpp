#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <vector>

#include "platform/devices/qt_time_source.h"
#include "support/iscrizione.h"
#include "waiting.h"

namespace qt_ticker_test {

using platform::QtTimeSource;
using platform::Ticker;
using prova::blockMilliseconds;
using prova::waitSeconds;

// The timers of QtTimeSource.
class QtTickerTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aNewTickerIsStoppedAndHasNoInterval() {
    const auto ticker = time_.makeTicker([] {});
    QVERIFY(!ticker->isRunning());
    QCOMPARE(ticker->interval(), 0);
  }

  void anIntervalOfNothingNeverTicks() {
    int ticks = 0;
    const auto ticker = time_.makeTicker([&] { ++ticks; });
    ticker->start();
    QVERIFY(ticker->isRunning());
    waitSeconds(time_, 0.05);
    QCOMPARE(ticks, 0);
    ticker->setInterval(-5);
    waitSeconds(time_, 0.05);
    QCOMPARE(ticks, 0);
    ticker->setInterval(5);
    waitSeconds(time_, 0.05);
    QVERIFY(ticks > 0);
  }

  void ticksComeAtThePaceOfTheInterval() {
    std::vector<qint64> moments;
    QElapsedTimer clock;
    const auto ticker = time_.makeTicker([&] { moments.push_back(clock.elapsed()); });
    ticker->setInterval(250);
    clock.start();
    ticker->start();
    waitSeconds(time_, 1.1);
    QCOMPARE(moments.size(), std::size_t{4});
    for (std::size_t i = 0; i < moments.size(); ++i) {
      const qint64 due = 250 * static_cast<qint64>(i + 1);
      QVERIFY2(moments[i] >= due - 2 && moments[i] <= due + 40,
               qPrintable(QString::number(moments[i])));
    }
  }

  void aTickDueWhileTheProgramIsBusyComesOnce() {
    int ticks = 0;
    const auto ticker = time_.makeTicker([&] { ++ticks; });
    ticker->setInterval(20);
    ticker->start();
    for (int i = 0; i < 5; ++i) {
      blockMilliseconds(50);
      time_.letEventsRun();
      QCOMPARE(ticks, i + 1);
    }
  }

  void aTickWaitingInTheQueueIsNotQueuedTwice() {
    // Timer events alone are handled, again and again; the posted tick stays in the queue.
    int ticks = 0;
    const auto ticker = time_.makeTicker([&] { ++ticks; });
    ticker->setInterval(10);
    ticker->start();
    QTimer holder;
    int blocks = 0;
    QObject::connect(&holder, &QTimer::timeout, [&] {
      blockMilliseconds(15);
      ++blocks;
    });
    holder.start(0);
    waitSeconds(time_, 0.2);
    QVERIFY(blocks > 3);
    QVERIFY2(ticks <= blocks + 1, qPrintable(QString::number(ticks)));
  }

  void aTickNeverRunsInsideTheTimersOwnSlot() {
    // If it did, a wait inside the tick would get no further ticks.
    int ticks = 0;
    int depth = 0;
    int deepest = 0;
    const auto ticker = time_.makeTicker([&] {
      ++ticks;
      deepest = std::max(deepest, ++depth);
      if (depth == 1) {
        waitSeconds(time_, 0.1);
      }
      --depth;
    });
    ticker->setInterval(20);
    ticker->start();
    waitSeconds(time_, 0.06);
    ticker->stop();
    QVERIFY2(ticks >= 4, qPrintable(QString::number(ticks)));
    QCOMPARE(deepest, 2);
  }

  void changingTheIntervalRestartsTheCount() {
    int ticks = 0;
    const auto ticker = time_.makeTicker([&] { ++ticks; });
    ticker->setInterval(80);
    ticker->start();
    for (int i = 0; i < 5; ++i) {
      waitSeconds(time_, 0.04);
      ticker->setInterval(80);
    }
    QCOMPARE(ticks, 0);
    waitSeconds(time_, 0.1);
    QCOMPARE(ticks, 1);
  }

  void changingTheIntervalTakesBackAQueuedTick() {
    int ticks = 0;
    QtTimeSource& time = time_;
    const auto ticker = time.makeTicker([&] { ++ticks; });
    ticker->setInterval(10);
    ticker->start();
    QTimer::singleShot(20, Qt::PreciseTimer, &context_, [&] {
      // Both timers are due in this round; the tick is in the queue or about to be.
      ticker->setInterval(10'000);
    });
    blockMilliseconds(30);
    time.letEventsRun();
    QCOMPARE(ticks, 0);
    QVERIFY(ticker->isRunning());
  }

  void startingARunningTickerLeavesItsCountAlone() {
    int ticks = 0;
    const auto ticker = time_.makeTicker([&] { ++ticks; });
    ticker->setInterval(60);
    ticker->start();
    for (int i = 0; i < 4; ++i) {
      waitSeconds(time_, 0.03);
      ticker->start();
    }
    QVERIFY(ticks >= 1);
  }

  void aStoppedTickerTakesItsQueuedTickBack() {
    int ticks = 0;
    const auto ticker = time_.makeTicker([&] { ++ticks; });
    ticker->setInterval(10);
    ticker->start();
    QTimer::singleShot(20, Qt::PreciseTimer, &context_, [&] { ticker->stop(); });
    blockMilliseconds(30);
    time_.letEventsRun();
    time_.letEventsRun();
    QCOMPARE(ticks, 0);
    QVERIFY(!ticker->isRunning());
  }

  void aTickerMayStopItselfInItsTick() {
    int ticks = 0;
    std::unique_ptr<Ticker> ticker;
    ticker = time_.makeTicker([&] {
      ++ticks;
      ticker->stop();
    });
    ticker->setInterval(5);
    ticker->start();
    waitSeconds(time_, 0.05);
    QCOMPARE(ticks, 1);
    ticker->start();
    waitSeconds(time_, 0.05);
    QCOMPARE(ticks, 2);
  }

  void aTickerMayBeDestroyedInItsTick() {
    int ticks = 0;
    std::unique_ptr<Ticker> ticker;
    ticker = time_.makeTicker([&] {
      ticker.reset();
      waitSeconds(time_, 0.03);
      ++ticks;  // what the callback holds is still there
    });
    ticker->setInterval(5);
    ticker->start();
    waitSeconds(time_, 0.1);
    QCOMPARE(ticks, 1);
  }

  void aTickerMayBeDestroyedInATickInsideItsTick() {
    int ticks = 0;
    std::unique_ptr<Ticker> ticker;
    ticker = time_.makeTicker([&] {
      if (++ticks == 1) {
        waitSeconds(time_, 0.05);
      } else {
        ticker.reset();
      }
    });
    ticker->setInterval(5);
    ticker->start();
    waitSeconds(time_, 0.1);
    QCOMPARE(ticks, 2);
  }

  void aDestroyedTickerTakesItsQueuedTickBack() {
    int ticks = 0;
    auto ticker = time_.makeTicker([&] { ++ticks; });
    ticker->setInterval(10);
    ticker->start();
    QTimer::singleShot(20, Qt::PreciseTimer, &context_, [&] { ticker.reset(); });
    blockMilliseconds(30);
    time_.letEventsRun();
    time_.letEventsRun();
    QCOMPARE(ticks, 0);
  }

 private:
  QtTimeSource time_;
  QObject context_;
};

const prova::Iscrizione<QtTickerTest, QCoreApplication> kIscritta;

}  // namespace qt_ticker_test

#include "qt_ticker_test.moc"
