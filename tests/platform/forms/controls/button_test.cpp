#include "platform/forms/controls/button.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>

#include "clicks.h"
#include "support/iscrizione.h"

namespace button_test {

using trial::Clicks;
using trial::Stage;
using trial::TrialForm;

namespace {

bool looksPressed(const platform::Button& button) {
  return static_cast<QAbstractButton*>(button.widget())->isDown();
}

}  // namespace

// The ways in which a button is clicked, and those in which it is not.
class ButtonTest : public QObject {
  Q_OBJECT

  // Tries all ways on the first button, which has the focus where it can have it.
  static void tryEverything(Stage& stage, const TrialForm& form) {
    stage.click(form.First);
    stage.tap(Qt::Key_F, Qt::AltModifier, QStringLiteral("f"));
    Stage::pressBySpeech(form.First);
    QCoreApplication::processEvents();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
      QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
      QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
      QCoreApplication::sendEvent(form.First.widget(), &press);
      QCoreApplication::sendEvent(form.First.widget(), &release);
    }
  }

 private Q_SLOTS:
  void enterClicksAtThePress_data() {
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter of the keypad") << int(Qt::Key_Enter);
  }
  void enterClicksAtThePress() {
    QFETCH(int, key);
    Stage stage;
    Clicks clicks(stage);
    clicks.form.First.setFocus();
    stage.press(Qt::Key(key));
    QCOMPARE(clicks.first, 1);
    stage.release(Qt::Key(key));
    QCOMPARE(clicks.first, 1);
  }

  void spaceClicksAtTheRelease() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.First.setFocus();
    stage.press(Qt::Key_Space);
    QCOMPARE(clicks.first, 0);
    QVERIFY(looksPressed(clicks.form.First));
    stage.release(Qt::Key_Space);
    QCOMPARE(clicks.first, 1);
    QVERIFY(!looksPressed(clicks.form.First));
  }

  void theAccessKeyClicksAtThePress() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.First.setFocus();
    stage.press(Qt::Key_S, Qt::AltModifier, QStringLiteral("s"));
    QCOMPARE(clicks.second, 1);
    stage.release(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(clicks.second, 1);
    QCOMPARE(clicks.first, 0);
  }

  void theAccessKeyFollowsTheCaption() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.First.setCaption(QStringLiteral("n&uovo"));
    stage.tap(Qt::Key_F, Qt::AltModifier, QStringLiteral("f"));
    QCOMPARE(clicks.first, 0);
    stage.tap(Qt::Key_U, Qt::AltModifier, QStringLiteral("u"));
    QCOMPARE(clicks.first, 1);
  }

  void aKeyThatWritesNothingIsNoAccessKey() {
    Stage stage;
    Clicks clicks(stage);
    stage.tap(Qt::Key_F, Qt::AltModifier);
    QCOMPARE(clicks.first, 1);
    // Its code ends like that of F.
    stage.tap(Qt::Key_F23, Qt::AltModifier);
    QCOMPARE(clicks.first, 1);
  }

  void aLetterWithoutAltIsNoAccessKey() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.Third.setFocus();
    stage.tap(Qt::Key_S, {}, QStringLiteral("s"));
    QCOMPARE(clicks.second, 0);
  }

  void thePressOfAssistiveTechnologyClicksAtOnce() {
    Stage stage;
    Clicks clicks(stage);
    QAccessibleInterface* spoken =
        QAccessible::queryAccessibleInterface(clicks.form.First.widget());
    QVERIFY(spoken->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
    Stage::pressBySpeech(clicks.form.First);
    QCoreApplication::processEvents();
    QCOMPARE(clicks.first, 1);
  }

  void thatPressDoesNothingToAButtonDisabledBeforeItArrives() {
    Stage stage;
    Clicks clicks(stage);
    Stage::pressBySpeech(clicks.form.First);
    clicks.form.First.setEnabled(false);
    QCoreApplication::processEvents();
    QCOMPARE(clicks.first, 0);
  }

  void theMouseClicksAtTheReleaseInside() {
    Stage stage;
    Clicks clicks(stage);
    const QPoint place = stage.centre(clicks.form.First);
    stage.pressMouse(clicks.form.First);
    QCOMPARE(clicks.first, 0);
    QVERIFY(looksPressed(clicks.form.First));
    stage.releaseMouse(place + QPoint(5, 3));
    QCOMPARE(clicks.first, 1);
    QVERIFY(!looksPressed(clicks.form.First));
  }

  void aReleaseOutsideClicksNothing() {
    Stage stage;
    Clicks clicks(stage);
    const QPoint outside = stage.centre(clicks.form.Second);
    stage.pressMouse(clicks.form.First);
    stage.moveMouse(outside);
    stage.releaseMouse(outside);
    QCOMPARE(clicks.first, 0);
    QCOMPARE(clicks.second, 0);
    QVERIFY(!looksPressed(clicks.form.First));
  }

  void aPressThatCameFromOutsideClicksNothing() {
    Stage stage;
    Clicks clicks(stage);
    const QPoint place = stage.centre(clicks.form.First);
    stage.pressMouse(clicks.form.Words);
    stage.moveMouse(place);
    stage.releaseMouse(place);
    QCOMPARE(clicks.first, 0);
  }

  void onlyTheLeftButtonOfTheMouseClicks() {
    Stage stage;
    Clicks clicks(stage);
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
      QTest::mouseClick(stage.window(), button, {}, stage.centre(clicks.form.First));
    }
    QCOMPARE(clicks.first, 0);
  }

  void aButtonDisabledUnderTheHeldMouseIsNotClicked() {
    Stage stage;
    Clicks clicks(stage);
    const QPoint place = stage.centre(clicks.form.First);
    stage.pressMouse(clicks.form.First);
    clicks.form.First.setEnabled(false);
    stage.releaseMouse(place);
    clicks.form.First.setEnabled(true);
    QCOMPARE(clicks.first, 0);
    QVERIFY(!looksPressed(clicks.form.First));
    stage.moveMouse(place);
    QVERIFY(!looksPressed(clicks.form.First));
  }

  void everyWayIsTriedOnALiveButton() {
    Stage stage;
    Clicks clicks(stage);
    tryEverything(stage, clicks.form);
    QCOMPARE(clicks.first, 5);
  }

  void aDisabledButtonIsNeverClicked() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.First.setEnabled(false);
    tryEverything(stage, clicks.form);
    QCOMPARE(clicks.first, 0);
  }

  void aHiddenButtonIsNeverClicked() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.First.setVisible(false);
    tryEverything(stage, clicks.form);
    QCOMPARE(clicks.first, 0);
  }

  void aButtonInAHiddenPanelIsNeverClicked() {
    Stage stage;
    Clicks clicks(stage);
    stage.tap(Qt::Key_C, Qt::AltModifier, QStringLiteral("c"));
    Stage::pressBySpeech(clicks.form.PanelSecond);
    QCoreApplication::processEvents();
    QCOMPARE(clicks.inPanel, 0);
  }

  void aCoveredButtonIsNeverClicked() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.Panel.cover();
    tryEverything(stage, clicks.form);
    QCOMPARE(clicks.first, 0);
  }

  void aKeyHeldForThreeSecondsIsOneClick_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("alt");
    QTest::addColumn<bool>("pairs");
    for (const bool pairs : {true, false}) {
      const QByteArray how = pairs ? "pairs" : "presses alone";
      QTest::newRow("Space, " + how) << int(Qt::Key_Space) << false << pairs;
      QTest::newRow("Return, " + how) << int(Qt::Key_Return) << false << pairs;
      QTest::newRow("Alt+F, " + how) << int(Qt::Key_F) << true << pairs;
    }
  }
  void aKeyHeldForThreeSecondsIsOneClick() {
    QFETCH(int, key);
    QFETCH(bool, alt);
    QFETCH(bool, pairs);
    const Qt::KeyboardModifiers with = alt ? Qt::AltModifier : Qt::NoModifier;
    const QString text = alt ? QStringLiteral("f") : QString();
    Stage stage;
    Clicks clicks(stage);
    clicks.form.First.setFocus();
    stage.press(Qt::Key(key), with, text);
    for (int i = 0; i < 90; ++i) {
      if (pairs) {
        stage.repeat(Qt::Key(key), with, text);
      } else {
        QTest::simulateEvent(stage.window(), true, key, with, text, true);
      }
    }
    QCOMPARE(clicks.first, key == Qt::Key_Space ? 0 : 1);
    stage.release(Qt::Key(key), with);
    QCOMPARE(clicks.first, 1);
    // The next hold is another click.
    stage.tap(Qt::Key(key), with, text);
    QCOMPARE(clicks.first, 2);
  }

  void enterHeldWhileTheFocusMovesClicksNothingElse() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.First.onClick([&] {
      ++clicks.first;
      clicks.form.Second.setFocus();
    });
    clicks.form.First.setFocus();
    stage.press(Qt::Key_Return);
    for (int i = 0; i < 20; ++i) stage.repeat(Qt::Key_Return);
    stage.release(Qt::Key_Return);
    QVERIFY(clicks.form.Second.hasFocus());
    QCOMPARE(clicks.first, 1);
    QCOMPARE(clicks.second, 0);
  }

  void theReleaseGoesToTheButtonThatHasTheFocusThen() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.First.setFocus();
    stage.press(Qt::Key_Space);
    clicks.form.Second.setFocus();
    QVERIFY(!looksPressed(clicks.form.First));
    stage.release(Qt::Key_Space);
    QCOMPARE(clicks.first, 0);
    QCOMPARE(clicks.second, 1);
  }

  void aSpaceWithCtrlOrAltClicksNothingAndLeavesNoButtonPressed_data() {
    QTest::addColumn<int>("modifier");
    QTest::newRow("Ctrl") << int(Qt::ControlModifier);
    QTest::newRow("Alt") << int(Qt::AltModifier);
  }
  void aSpaceWithCtrlOrAltClicksNothingAndLeavesNoButtonPressed() {
    QFETCH(int, modifier);
    Stage stage;
    Clicks clicks(stage);
    clicks.form.First.setFocus();
    stage.tap(Qt::Key_Space, Qt::KeyboardModifiers(modifier));
    QCOMPARE(clicks.first, 0);
    QVERIFY(!looksPressed(clicks.form.First));
  }
};

const prova::Iscrizione<ButtonTest, QApplication> kIscritta;

}  // namespace button_test

#include "button_test.moc"
