#include "leading_form.h"

#include <QApplication>
#include "platform/forms/forms.h"
#include "support/iscrizione.h"

namespace page_change_test {

using trial::kOne;
using trial::kTwo;
using trial::leading;
using trial::Stage;
using trial::TrialForm;
using trial::words;

// Keys and mouse while one page makes room for another.
class PageChangeTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theOldPageTakesNothingWhileTheNewOneYieldsInItsLoad() {
    Stage stage;
    TrialForm* from = nullptr;
    TrialForm& one = leading(stage, [&](TrialForm& two) {
      stage.time.after(0.1, [&] {
        stage.click(from->Second);
        stage.tap(Qt::Key_Space);
        stage.tap(Qt::Key_Return);
        stage.tap(Qt::Key_S, Qt::AltModifier, QStringLiteral("s"));
        stage.tap(Qt::Key_A, Qt::AltModifier, QStringLiteral("a"));
        stage.tap(Qt::Key_S, Qt::ControlModifier);
        Stage::pressBySpeech(from->Second);
        from->MenuAct.action()->trigger();
        QCoreApplication::processEvents();
      });
      from->Second.setFocus();
      two.wait(1);
    });
    from = &one;
    stage.click(one.First);
    QCOMPARE(stage.log, words({"Two.Load", "Two.Resize", "Two.Activate", "One.Unload"}));
  }

  void aSecondClickOnTheWayOpensNothingTwice() {
    Stage stage;
    TrialForm* from = nullptr;
    TrialForm& one = leading(stage, [&](TrialForm& two) {
      stage.time.after(0.1, [&] { stage.click(from->First); });
      two.wait(1);
    });
    from = &one;
    stage.click(one.First);
    QCOMPARE(stage.log.count(QStringLiteral("Two.Load")), 1);
  }

  void aDoubleClickOpensNothingTwiceAndDoesNotReachTheNewPage() {
    Stage stage;
    TrialForm& one = leading(stage, [](TrialForm&) {});
    stage.doubleClick(one.First);
    QCoreApplication::processEvents();
    QCOMPARE(stage.log, words({"Two.Load", "Two.Resize", "Two.Activate", "One.Unload"}));
    // The next click is the new page's own.
    stage.click(stage.current().First);
    QCOMPARE(stage.log.last(), QStringLiteral("Two.First"));
  }

  void aDoubleClickOnOnePageIsTwoClicks() {
    Stage stage;
    TrialForm& one = stage.show(kOne);
    int clicks = 0;
    one.Second.onClick([&clicks] { ++clicks; });
    stage.doubleClick(one.Second);
    QCOMPARE(clicks, 2);
  }

  void aKeyHeldOnTheOldPageDoesNothingOnTheNew() {
    Stage stage;
    TrialForm& one = leading(stage, [](TrialForm&) {});
    one.First.setFocus();
    stage.press(Qt::Key_Return);
    stage.current().First.setFocus();
    for (int i = 0; i < 5; ++i) stage.repeat(Qt::Key_Return);
    stage.release(Qt::Key_Return);
    QVERIFY(!stage.log.contains(QStringLiteral("Two.First")));
    // The same key pressed anew is the new page's.
    stage.tap(Qt::Key_Return);
    QVERIFY(stage.log.contains(QStringLiteral("Two.First")));
  }

  void aSpaceHeldOverAChangeOfPageDoesNothingAtItsRelease() {
    Stage stage;
    TrialForm& one = leading(stage, [](TrialForm&) {});
    one.Second.setFocus();
    stage.press(Qt::Key_Space);
    one.run([&] { stage.runtime->forms().pass(one, kTwo.name); });
    stage.current().First.setFocus();
    stage.release(Qt::Key_Space);
    QVERIFY(!stage.log.contains(QStringLiteral("Two.First")));
  }

  void aMouseButtonHeldOverAChangeOfPageDoesNothingAtItsRelease() {
    Stage stage;
    TrialForm& one = leading(stage, [](TrialForm&) {});
    const QPoint place = stage.centre(one.First);
    stage.pressMouse(one.First);
    one.run([&] { stage.runtime->forms().pass(one, kTwo.name); });
    QCoreApplication::processEvents();
    stage.releaseMouse(place);
    QVERIFY(!stage.log.contains(QStringLiteral("Two.First")));
  }
};

const prova::Iscrizione<PageChangeTest, QApplication> kIscritta;

}  // namespace page_change_test

#include "page_change_test.moc"
