#include "platform/forms/gate.h"

#include <QApplication>

#include "stage.h"
#include "support/iscrizione.h"

namespace gate_test {

using platform::Gate;
using trial::kOne;
using trial::kTwo;
using trial::Stage;
using trial::TrialForm;

namespace {

QStringList words(std::initializer_list<const char*> list) {
  QStringList result;
  for (const char* word : list) result.append(QString::fromUtf8(word));
  return result;
}

// A form whose first button begins, waits a second and goes on.
TrialForm& waiting(Stage& stage) {
  TrialForm& form = stage.show(kOne);
  stage.log.clear();
  form.First.onClick([&form] {
    form.write(QStringLiteral("begins"));
    form.wait(1);
    form.write(QStringLiteral("goes on"));
  });
  return form;
}

}  // namespace

// Handlers, waits and what ends them.
class GateTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aHandlerThatComesToItsEndSaysSo() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    QVERIFY(form.run([] {}));
    QVERIFY(!form.run([] { throw platform::Unwind{}; }));
  }

  void aWaitReturnsIntoItsHandlerWhenNothingHappens() {
    Stage stage;
    TrialForm& form = waiting(stage);
    stage.click(form.First);
    QCOMPARE(stage.log, words({"begins", "goes on"}));
  }

  void aWaitLetsEventsRunByTheScriptedClock() {
    Stage stage;
    TrialForm& form = waiting(stage);
    form.Second.onClick([&form] { form.write(QStringLiteral("second")); });
    stage.time.after(0.5, [&] { stage.click(form.Second); });
    stage.click(form.First);
    QCOMPARE(stage.log, words({"begins", "second", "goes on"}));
  }

  void aWaitWhoseFormIsLeftDoesNotReturn() {
    Stage stage;
    TrialForm& form = waiting(stage);
    form.Second.onClick([&] { stage.runtime->forms().pass(form, kTwo.name); });
    stage.time.after(0.5, [&] { stage.click(form.Second); });
    stage.click(form.First);
    QCOMPARE(stage.log, words({"begins", "Two.Load", "Two.Resize", "Two.Activate", "One.Unload"}));
    QCOMPARE(stage.currentName(), QStringLiteral("Two"));
  }

  void aYieldWhoseFormIsLeftDoesNotReturn() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    bool wentOn = false;
    form.First.onClick([&] {
      stage.time.after(0, [&] { stage.runtime->forms().unload(form); });
      form.letEventsRun();
      wentOn = true;
    });
    stage.click(form.First);
    QVERIFY(!wentOn);
  }

  void aHandlerThatUnloadsItsOwnFormRunsOnButItsNextWaitDoesNot() {
    Stage stage;
    stage.show(kOne);
    TrialForm& sheet = stage.show(kTwo);
    stage.log.clear();
    sheet.First.onClick([&] {
      stage.runtime->forms().unload(sheet);
      sheet.write(QStringLiteral("closed"));
      sheet.letEventsRun();
      sheet.write(QStringLiteral("never"));
    });
    stage.click(sheet.First);
    QVERIFY(stage.log.contains(QStringLiteral("closed")));
    QVERIFY(!stage.log.contains(QStringLiteral("never")));
  }

  void aWaitOutOfWhichTheWindowIsClosedDoesNotReturn() {
    Stage stage;
    TrialForm& form = waiting(stage);
    stage.time.after(0.5, [&] { stage.runtime->window().close(); });
    stage.click(form.First);
    QCOMPARE(stage.log, words({"begins", "One.Unload"}));
    QCOMPARE(stage.end.stato, std::optional(0));
  }

  void everyWaitOnTheStackUnwindsWhenTheWindowIsClosed() {
    Stage stage;
    TrialForm& form = waiting(stage);
    stage.time.after(0.25, [&] { stage.click(form.First); });
    stage.time.after(0.5, [&] { stage.runtime->window().close(); });
    stage.click(form.First);
    QCOMPARE(stage.log, words({"begins", "begins", "One.Unload"}));
  }

  void aMessageBoxInWhichTheFormIsLeftDoesNotReturn() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    stage.boxes.mentreAperto = [&] { stage.runtime->forms().unload(form); };
    bool wentOn = false;
    form.First.onClick([&] {
      stage.runtime->showBox({.text = QStringLiteral("Look")});
      wentOn = true;
    });
    stage.click(form.First);
    QCOMPARE(stage.boxes.mostrati.size(), std::size_t(1));
    QVERIFY(!wentOn);
  }

  void whoSpeaksKnowsOfEachBoxThatStandsInFront() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    int during = 0;
    stage.boxes.mentreAperto = [&] { during = stage.announcer.davanti; };
    form.run([&] { stage.runtime->showBox({.text = QStringLiteral("Look")}); });
    QCOMPARE(during, 1);
    QCOMPARE(stage.announcer.davanti, 0);
  }

  void aMessageBoxReturnsThoughTheCaseWasReplacedBehindIt() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    stage.boxes.mentreAperto = [&form] { form.newCase(); };
    bool wentOn = false;
    form.First.onClick([&] {
      stage.runtime->showBox({.text = QStringLiteral("Look")});
      wentOn = true;
    });
    stage.click(form.First);
    QVERIFY(wentOn);
  }

  void aWaitForADeviceReturnsThoughTheCaseWasReplacedBehindIt() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    bool wentOn = false;
    form.First.onClick([&] {
      stage.runtime->waitDeaf([&form] { form.newCase(); });
      wentOn = true;
    });
    stage.click(form.First);
    QVERIFY(wentOn);
  }

  void aBoxThatComesUpWhileADeviceIsWaitedForCanBeAnswered() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    bool deafInBox = true;
    bool deafAfter = false;
    stage.boxes.mentreAperto = [&] { deafInBox = stage.runtime->isDeaf(); };
    form.run([&] {
      stage.runtime->waitDeaf([&] {
        form.run([&] { stage.runtime->showBox({.text = QStringLiteral("Ready")}); });
        deafAfter = stage.runtime->isDeaf();
      });
    });
    QVERIFY(!deafInBox);
    QVERIFY(deafAfter);
    QVERIFY(!stage.runtime->isDeaf());
  }

  void aSecondClickInAWaitRunsInsideIt() {
    Stage stage;
    TrialForm& form = waiting(stage);
    stage.time.after(0.5, [&] { stage.click(form.First); });
    stage.click(form.First);
    QCOMPARE(stage.log, words({"begins", "begins", "goes on", "goes on"}));
  }

  void waitsEndLastInFirstOut() {
    Stage stage;
    TrialForm& form = waiting(stage);
    form.Second.onClick([&form] {
      form.wait(5);
      form.write(QStringLiteral("inner"));
    });
    stage.time.after(0.5, [&] { stage.click(form.Second); });
    stage.click(form.First);
    QCOMPARE(stage.log, words({"begins", "inner", "goes on"}));
  }

  void aWaitOfACaseThatWasReplacedDoesNotReturn() {
    Stage stage;
    TrialForm& form = waiting(stage);
    form.Second.onClick([&form] { form.newCase(); });
    stage.time.after(0.5, [&] { stage.click(form.Second); });
    stage.click(form.First);
    QCOMPARE(stage.log, words({"begins"}));
    QCOMPARE(stage.currentName(), QStringLiteral("One"));
    // The next handler waits for the new case, in peace.
    stage.log.clear();
    stage.click(form.First);
    QCOMPARE(stage.log, words({"begins", "goes on"}));
  }

  void aHandlerThatReplacesTheCaseItselfMayWaitForTheNewOne() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    bool wentOn = false;
    form.First.onClick([&] {
      form.newCase();
      form.wait(1);
      wentOn = true;
    });
    stage.click(form.First);
    QVERIFY(wentOn);
  }

  void anActionThatMustComeToItsEndGoesOnAcrossCases() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    stage.log.clear();
    form.First.onClick([&] {
      {
        const Gate::AcrossCases across(stage.runtime->gate());
        form.wait(1);
        form.write(QStringLiteral("carried"));
      }
      form.wait(1);
      form.write(QStringLiteral("never"));
    });
    form.Second.onClick([&form] { form.newCase(); });
    stage.time.after(0.5, [&] { stage.click(form.Second); });
    stage.time.after(1.5, [&] { stage.click(form.Second); });
    stage.click(form.First);
    QCOMPARE(stage.log, words({"carried"}));
  }

  void evenAnActionAcrossCasesEndsWithItsForm() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    bool wentOn = false;
    form.First.onClick([&] {
      const Gate::AcrossCases across(stage.runtime->gate());
      stage.time.after(0.5, [&] { stage.runtime->forms().unload(form); });
      form.wait(1);
      wentOn = true;
    });
    stage.click(form.First);
    QVERIFY(!wentOn);
  }

  void noHandlerStartsAfterTheEnd() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    int ran = 0;
    const auto count = [&ran] { ++ran; };
    form.First.onClick(count);
    form.MenuAct.onClick(count);
    form.Clock.onTick(count);
    form.Clock.setInterval(10);
    form.Clock.setEnabled(true);
    stage.runtime->endProcess(0);
    stage.click(form.First);
    form.MenuAct.click();
    stage.time.advance(1);
    QVERIFY(!form.run(count));
    QCOMPARE(ran, 0);
    QVERIFY(!stage.log.contains(QStringLiteral("One.Unload")));
  }

  void noHandlerOfAFormStartsAfterItsUnloading() {
    Stage stage;
    TrialForm& form = waiting(stage);
    form.Second.onClick([&] {
      stage.runtime->forms().unload(form);
      QVERIFY(!form.run([&form] { form.write(QStringLiteral("never")); }));
    });
    stage.time.after(0.5, [&] { stage.click(form.Second); });
    stage.click(form.First);
    QVERIFY(!stage.log.contains(QStringLiteral("never")));
  }

  void aFormIsDestroyedOnlyWhenNoneOfItsHandlersIsLeft() {
    Stage stage;
    TrialForm& form = waiting(stage);
    const std::weak_ptr<platform::Form> watch = form.weak_from_this();
    form.Second.onClick([&] { stage.runtime->forms().pass(form, kTwo.name); });
    bool aliveLater = false;
    stage.time.after(0.4, [&] { stage.click(form.Second); });
    // The form has been left, its first handler is still on the stack, and the queue runs empty.
    stage.prepare["Two"] = [&](TrialForm& two) {
      two.activating = [&] {
        two.wait(0.3);
        for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
        aliveLater = !watch.expired();
      };
    };
    stage.click(form.First);
    QVERIFY(aliveLater);
    QCoreApplication::processEvents();
    QVERIFY(watch.expired());
  }

  void aFormUnloadedInAWaitOfAnotherFormIsDestroyedAtOnce() {
    Stage stage;
    TrialForm& below = stage.show(kOne);
    const std::weak_ptr<platform::Form> watch = stage.show(kTwo).weak_from_this();
    bool gone = false;
    below.run([&] {
      stage.runtime->forms().unload(*watch.lock());
      below.wait(1);
      gone = watch.expired();
    });
    QVERIFY(gone);
  }

  void outsideOfAnyHandlerAWaitJustWaits() {
    Stage stage;
    bool worked = false;
    stage.runtime->gate().wait([&worked] { worked = true; });
    QVERIFY(worked);
  }

  void aBoxWithoutATitleBearsTheProgramsAndOneWithATitleItsOwn() {
    Stage stage;
    stage.runtime->showBox({.text = QStringLiteral("Look")});
    stage.runtime->showBox({.text = QStringLiteral("Look"), .title = QStringLiteral("Mine")});
    QCOMPARE(stage.boxes.mostrati[0].title, QStringLiteral("The program"));
    QCOMPARE(stage.boxes.mostrati[1].title, QStringLiteral("Mine"));
  }
};

const prova::Iscrizione<GateTest, QApplication> kIscritta;

}  // namespace gate_test

#include "gate_test.moc"
