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

#include "support/iscrizione.h"
#include "support/stand_still.h"
#include "waiting.h"

namespace qt_time_source_test {

using platform::QtTimeSource;
using prova::blockMilliseconds;
using prova::waitSeconds;

namespace {

double processorSeconds() {
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

}  // namespace

// The clock and the waits.
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
