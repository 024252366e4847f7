#include "platform/base/run_time_error.h"

#include <QApplication>
#include "stage.h"
#include "support/iscrizione.h"

namespace run_time_errors_test {

using platform::RunTimeError;
using trial::kOne;
using trial::kTwo;
using trial::Stage;
using trial::TrialForm;

// What becomes of an error in a handler of a form.
class RunTimeErrorsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anErrorThatNobodyTakesShowsItsBoxAndEndsWithFailure() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    form.First.onClick([] { throw RunTimeError(RunTimeError::Overflow); });
    stage.click(form.First);
    QCOMPARE(stage.boxes.mostrati.size(), std::size_t(1));
    const platform::MessageBox& box = stage.boxes.mostrati.front();
    QCOMPARE(box.text, QStringLiteral("Errore di run-time '6':\n\nOverflow"));
    QCOMPARE(box.title, QStringLiteral("The program"));
    QCOMPARE(box.icon, platform::BoxIcon::Critical);
    QCOMPARE(box.buttons, platform::BoxButtons::Ok);
    QVERIFY(stage.end.stato.has_value());
    QVERIFY(*stage.end.stato != 0);
    QVERIFY(!stage.log.contains(QStringLiteral("One.Unload")));
  }

  void anErrorEndsTheWaitsBelowItToo() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    bool waited = false;
    bool wentOn = false;
    form.First.onClick([&] {
      waited = true;
      form.wait(1);
      wentOn = true;
    });
    form.Second.onClick([] { throw RunTimeError(RunTimeError::InvalidCall); });
    stage.time.after(0.5, [&] { stage.click(form.Second); });
    stage.click(form.First);
    QVERIFY(waited && !wentOn);
  }

  void anErrorInAnyEventOfAFormIsTaken_data() {
    QTest::addColumn<int>("event");
    QTest::newRow("Load") << 0;
    QTest::newRow("Resize") << 1;
    QTest::newRow("Activate") << 2;
    QTest::newRow("Unload") << 3;
  }
  void anErrorInAnyEventOfAFormIsTaken() {
    QFETCH(int, event);
    Stage stage;
    stage.prepare["Two"] = [event](TrialForm& two) {
      std::function<void()>* const events[] = {&two.loading, &two.resizing, &two.activating,
                                               &two.unloading};
      *events[event] = [] { throw RunTimeError(RunTimeError::FileNotFound); };
    };
    TrialForm& form = stage.show(kOne);
    form.First.onClick([&] {
      stage.runtime->forms().show(kTwo.name);
      stage.runtime->forms().unload(stage.current());
      form.letEventsRun();
      form.write(QStringLiteral("never"));
    });
    stage.click(form.First);
    QCOMPARE(stage.boxes.mostrati.size(), std::size_t(1));
    QCOMPARE(stage.end.stato, std::optional(1));
    QVERIFY(!stage.log.contains(QStringLiteral("never")));
  }

  void nothingStartsWhileTheBoxOfAnErrorIsOpen() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    int ticks = 0;
    form.Clock.onTick([&ticks] { ++ticks; });
    form.Clock.setInterval(100);
    form.Clock.setEnabled(true);
    form.First.onClick([] { throw RunTimeError(RunTimeError::Overflow); });
    stage.boxes.mentreAperto = [&] { stage.time.advance(1); };
    stage.click(form.First);
    QCOMPARE(ticks, 0);
  }

  void theBoxOfAnErrorThatComesUpWhileADeviceIsWaitedForCanBeAnswered() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    bool deafInBox = true;
    stage.boxes.mentreAperto = [&] { deafInBox = stage.runtime->isDeaf(); };
    form.run([&] {
      stage.runtime->waitDeaf(
          [&] { form.run([] { throw RunTimeError(RunTimeError::Overflow); }); });
    });
    QCOMPARE(stage.boxes.mostrati.size(), std::size_t(1));
    QVERIFY(!deafInBox);
  }

  void anErrorThatIsIgnoredOnPurposeEndsNothing() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    bool wentOn = false;
    form.First.onClick([&] {
      try {
        throw RunTimeError(RunTimeError::Overflow);
      } catch (const RunTimeError&) {
        // On purpose.
      }
      wentOn = true;
    });
    stage.click(form.First);
    QVERIFY(wentOn);
    QVERIFY(stage.boxes.mostrati.empty());
    QVERIFY(!stage.end.stato);
  }
};

const prova::Iscrizione<RunTimeErrorsTest, QApplication> kIscritta;

}  // namespace run_time_errors_test

#include "run_time_errors_test.moc"
