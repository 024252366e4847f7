#include "platform/forms/controls/timer.h"

#include <QApplication>

#include "platform/base/run_time_error.h"
#include "stage.h"
#include "support/iscrizione.h"

namespace timer_test {

using trial::kOne;
using trial::Stage;
using trial::TrialForm;

namespace {

struct Ticking {
  explicit Ticking(Stage& stage) : form(stage.show(kOne)) {
    form.Clock.onTick([this] { ++ticks; });
    form.Clock.setInterval(100);
    form.Clock.setEnabled(true);
  }

  TrialForm& form;
  int ticks = 0;
};

}  // namespace

// The timers of forms.
class TimerTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aTimerTicksAtItsIntervalWhileItIsEnabled() {
    Stage stage;
    Ticking clock(stage);
    stage.time.advance(1.05);
    QCOMPARE(clock.ticks, 10);
    clock.form.Clock.setEnabled(false);
    stage.time.advance(1);
    QCOMPARE(clock.ticks, 10);
    QVERIFY(!stage.time.anyTicker());
  }

  void aTimerWithoutAnIntervalNeverTicks() {
    Stage stage;
    Ticking clock(stage);
    clock.form.Clock.setInterval(0);
    stage.time.advance(1);
    QCOMPARE(clock.ticks, 0);
    QVERIFY(!stage.time.anyTicker());
    clock.form.Clock.setInterval(500);
    stage.time.advance(0.6);
    QCOMPARE(clock.ticks, 1);
  }

  void changingTheIntervalBeginsTheCountAnew() {
    Stage stage;
    Ticking clock(stage);
    stage.time.advance(0.09);
    clock.form.Clock.setInterval(100);
    stage.time.advance(0.09);
    QCOMPARE(clock.ticks, 0);
    stage.time.advance(0.02);
    QCOMPARE(clock.ticks, 1);
  }

  void aDisabledTimerStaysSoWhenItsIntervalChanges() {
    Stage stage;
    Ticking clock(stage);
    clock.form.Clock.setEnabled(false);
    clock.form.Clock.setInterval(50);
    stage.time.advance(1);
    QCOMPARE(clock.ticks, 0);
    QCOMPARE(clock.form.Clock.interval(), 50);
  }

  void ticksGoOnInsideAWait() {
    Stage stage;
    Ticking clock(stage);
    int inside = 0;
    clock.form.First.onClick([&] {
      clock.form.wait(0.45);
      inside = clock.ticks;
    });
    stage.click(clock.form.First);
    QCOMPARE(inside, 4);
  }

  void aTickThatWaitsGetsFurtherTicks() {
    Stage stage;
    Ticking clock(stage);
    QStringList order;
    clock.form.Clock.onTick([&] {
      const int mine = ++clock.ticks;
      if (mine == 1) clock.form.wait(0.25);
      order.append(QString::number(mine));
    });
    stage.time.advance(0.4);
    QCOMPARE(order.mid(0, 3),
             (QStringList{QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("1")}));
  }

  void unloadingTheFormStopsItsTimersAtOnce() {
    Stage stage;
    Ticking clock(stage);
    clock.form.run([&] {
      stage.runtime->forms().unload(clock.form);
      QVERIFY(!stage.time.anyTicker());
      // And for good.
      clock.form.Clock.setEnabled(true);
      clock.form.Clock.setInterval(10);
      QVERIFY(!stage.time.anyTicker());
    });
    stage.time.advance(1);
    QCOMPARE(clock.ticks, 0);
  }

  void aTickMayUnloadItsForm() {
    Stage stage;
    stage.show(trial::kTwo);
    Ticking clock(stage);
    clock.form.Clock.onTick([&] { stage.runtime->forms().unload(clock.form); });
    stage.time.advance(0.5);
    QCoreApplication::processEvents();
    QCOMPARE(stage.currentName(), QStringLiteral("Two"));
    QCOMPARE(stage.log.count(QStringLiteral("One.Unload")), 1);
  }

  void noTickComesAfterTheEnd() {
    Stage stage;
    Ticking clock(stage);
    stage.runtime->endProcess(0);
    stage.time.advance(1);
    QCOMPARE(clock.ticks, 0);
  }

  void anErrorInATickIsTaken() {
    Stage stage;
    Ticking clock(stage);
    clock.form.Clock.onTick([] { throw platform::RunTimeError(platform::RunTimeError::Overflow); });
    stage.time.advance(0.5);
    QCOMPARE(stage.boxes.mostrati.size(), std::size_t(1));
    QCOMPARE(stage.end.stato, std::optional(1));
  }
};

const prova::Iscrizione<TimerTest, QApplication> kIscritta;

}  // namespace timer_test

#include "timer_test.moc"
