#include "platform/devices/bounded_work.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <future>

#include "platform/devices/qt_time_source.h"
#include "support/iscrizione.h"
#include "support/stand_still.h"

namespace bounded_work_test {

using platform::BoundedWork;
using platform::Waiting;
using std::chrono::milliseconds;

class BoundedWorkTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itGivesTheResult() {
    platform::QtTimeSource time;
    BoundedWork work(time);
    QCOMPARE(work.run<int>([](Waiting&) { return 7; }, milliseconds(5000)), std::optional(7));
  }

  void aResultThatComesLateIsWaitedForWhileEventsRun() {
    platform::QtTimeSource time;
    BoundedWork work(time);
    std::promise<void> go;
    auto ready = std::make_shared<std::future<void>>(go.get_future());
    // Only an event lets the work come to its end.
    QTimer::singleShot(0, this, [&go] { go.set_value(); });
    const auto result = work.run<int>(
        [ready](Waiting&) {
          ready->wait();
          return 3;
        },
        milliseconds(10000));
    QCOMPARE(result, std::optional(3));
  }

  void workThatHangsIsGivenUpAndSeesIt() {
    platform::QtTimeSource time;
    BoundedWork work(time);
    std::promise<bool> seen;
    std::future<bool> told = seen.get_future();
    auto release = std::make_shared<std::promise<void>>();
    std::shared_future<void> released = release->get_future().share();
    QElapsedTimer clock;
    clock.start();
    const auto result = work.run<int>(
        [released, out = std::make_shared<std::promise<bool>>(std::move(seen))](Waiting& waiting) {
          released.wait();
          out->set_value(waiting.goesOn());
          return 1;
        },
        milliseconds(150));
    QVERIFY(!result);
    QVERIFY(clock.elapsed() < 2000);
    release->set_value();
    QCOMPARE(told.get(), false);
  }

  void theWindowIsNeverHeldForLong() {
    platform::QtTimeSource time;
    BoundedWork work(time);
    auto release = std::make_shared<std::promise<void>>();
    std::shared_future<void> released = release->get_future().share();
    prova::StandStill still;
    QTimer heart;
    connect(&heart, &QTimer::timeout, this, [&] { still.beat(); });
    heart.start(5);
    (void)work.run<int>(
        [released](Waiting&) {
          released.wait();
          return 1;
        },
        milliseconds(600));
    still.beat();
    release->set_value();
    QVERIFY2(still.longest() < 200, qPrintable(QString::number(still.longest())));
  }

  void tooMuchHangingWorkIsNotAddedTo() {
    platform::QtTimeSource time;
    BoundedWork work(time);
    auto release = std::make_shared<std::promise<void>>();
    std::shared_future<void> released = release->get_future().share();
    const auto hang = [released](Waiting&) {
      released.wait();
      return 1;
    };
    for (int i = 0; i < 4; ++i) QVERIFY(!work.run<int>(hang, milliseconds(20)));
    std::atomic<bool> begun = false;
    QVERIFY(!work.run<int>(
        [&begun](Waiting&) {
          begun = true;
          return 1;
        },
        milliseconds(500)));
    QVERIFY(!begun);
    release->set_value();
    // Asked no more once it has come: what has just been done may still count among what hangs.
    std::optional<int> result;
    const auto comes = [&] {
      if (!result) result = work.run<int>([](Waiting&) { return 2; }, milliseconds(5000));
      return result.has_value();
    };
    QTRY_VERIFY(comes());
    QCOMPARE(result, std::optional(2));
  }
};

const prova::Iscrizione<BoundedWorkTest, QCoreApplication> kIscritta;

}  // namespace bounded_work_test

#include "bounded_work_test.moc"
