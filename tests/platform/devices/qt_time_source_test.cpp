#include "platform/devices/qt_time_source.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>
#include <QTest>
#include <QTime>
#include <QTimer>
#include <cmath>
#include <ctime>
#include <functional>
#include <memory>
#include <vector>

#include "support/iscrizione.h"
#include "support/stand_still.h"

namespace qt_time_source_test {

using platform::QtTimeSource;
using platform::Ticker;

namespace {

// Waits as the program's handlers do: lets events run until the limit has passed.
void waitSeconds(QtTimeSource& time, double seconds) {
  QElapsedTimer clock;
  clock.start();
  double left = seconds;
  while (left > 0) {
    time.sleepUntilEvent(left);
    left = seconds - static_cast<double>(clock.nsecsElapsed()) / 1e9;
  }
}

// Keeps the processor busy without letting events run.
void blockMilliseconds(int milliseconds) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < milliseconds) {
  }
}

double processorSeconds() {
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

}  // namespace

class QtTimeSourceTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theClockCountsSecondsSinceLocalMidnight() {
    const double before = QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
    const double read = time_.secondsSinceMidnight();
    const double after = QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
    if (after >= before) {  // not across midnight
      QVERIFY(read >= before && read <= after);
    }
    QVERIFY(read >= 0 && read < 86400);
  }

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

  void lettingEventsRunHandlesWhatIsQueuedAndReturns() {
    int handled = 0;
    const std::function<void()> again = [&] {
      ++handled;
      QMetaObject::invokeMethod(&context_, again, Qt::QueuedConnection);
    };
    QMetaObject::invokeMethod(&context_, again, Qt::QueuedConnection);
    time_.letEventsRun();  // would never return if it went on with what is queued meanwhile
    QVERIFY(handled >= 1 && handled <= 3);
    QCoreApplication::removePostedEvents(&context_);
  }

  void lettingEventsRunHandlesATickThatIsDue() {
    int ticks = 0;
    const auto ticker = time_.makeTicker([&] { ++ticks; });
    ticker->setInterval(5);
    ticker->start();
    blockMilliseconds(10);
    time_.letEventsRun();
    QCOMPARE(ticks, 1);
  }

  void anObjectDeletedLaterOutlivesTheWaitOfItsHandler() {
    QPointer<QObject> object = new QObject;
    bool aliveAfterWait = false;
    QMetaObject::invokeMethod(
        &context_,
        [&] {
          object->deleteLater();
          waitSeconds(time_, 0.02);
          time_.letEventsRun();
          aliveAfterWait = !object.isNull();
        },
        Qt::QueuedConnection);
    QEventLoop loop;
    QTimer::singleShot(60, &loop, &QEventLoop::quit);
    loop.exec();
    QVERIFY(aliveAfterWait);
    QTimer::singleShot(10, &loop, &QEventLoop::quit);
    loop.exec();
    QVERIFY(object.isNull());
  }

  void aSleepEndsAtItsLimit() {
    for (const double seconds : {0.001, 0.03, 0.2}) {
      prova::StandStill still;
      QElapsedTimer clock;
      clock.start();
      waitSeconds(time_, seconds);
      const double slept = static_cast<double>(clock.nsecsElapsed()) / 1e9;
      still.beat();
      QVERIFY2(slept >= seconds, qPrintable(QString::number(slept)));
      QVERIFY2(static_cast<double>(still.longest()) < (seconds + 0.05) * 1000,
               qPrintable(QString::number(still.longest())));
    }
  }

  void aSleepEndsAtAnEvent() {
    QElapsedTimer clock;
    bool handled = false;
    QTimer::singleShot(20, Qt::PreciseTimer, &context_, [&] { handled = true; });
    clock.start();
    while (!handled) {
      time_.sleepUntilEvent(10);
    }
    QVERIFY(clock.elapsed() < 1000);
  }

  void aTickEndsASleepAndIsHandledInIt() {
    int ticks = 0;
    const auto ticker = time_.makeTicker([&] { ++ticks; });
    ticker->setInterval(20);
    ticker->start();
    QElapsedTimer clock;
    clock.start();
    while (ticks == 0 && clock.elapsed() < 5000) {
      time_.sleepUntilEvent(10);
    }
    QCOMPARE(ticks, 1);
    QVERIFY(clock.elapsed() < 1000);
  }

  void aSleepOfNothingReturnsAtOnce() {
    QElapsedTimer clock;
    clock.start();
    time_.sleepUntilEvent(0);
    time_.sleepUntilEvent(-3);
    time_.sleepUntilEvent(std::nan(""));
    QVERIFY(clock.elapsed() < 100);
  }

  void anEndlessLimitIsNoTrouble() {
    QTimer::singleShot(10, &context_, [] {});
    QElapsedTimer clock;
    clock.start();
    time_.sleepUntilEvent(1e300);
    QVERIFY(clock.elapsed() < 1000);
  }

  void aWaitOfTwoSecondsLeavesTheProcessorAlone() {
    const auto ticker = time_.makeTicker([] {});
    ticker->setInterval(250);
    ticker->start();
    const double before = processorSeconds();
    waitSeconds(time_, 2);
    const double used = processorSeconds() - before;
    QVERIFY2(used < 0.04, qPrintable(QString::number(used)));
  }

  void waitsEndLastInFirstOut() {
    QList<int> order;
    QMetaObject::invokeMethod(
        &context_,
        [&] {
          waitSeconds(time_, 0.15);
          order.append(2);
        },
        Qt::QueuedConnection);
    waitSeconds(time_, 0.05);  // ends only when the longer wait inside it has
    order.append(1);
    QCOMPARE(order, (QList<int>{2, 1}));
  }

 private:
  QtTimeSource time_;
  QObject context_;
};

const prova::Iscrizione<QtTimeSourceTest, QCoreApplication> kIscritta;

}  // namespace qt_time_source_test

#include "qt_time_source_test.moc"
