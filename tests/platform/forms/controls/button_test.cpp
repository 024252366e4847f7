#include "platform/forms/controls/button.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>

#include "stage.h"
#include "support/iscrizione.h"

using trial::kOne;
using trial::Stage;
using trial::TrialForm;

namespace {

bool looksPressed(const platform::Button& button) {
  return static_cast<QAbstractButton*>(button.widget())->isDown();
}

// A form that counts the clicks of its buttons.
struct Clicks {
  explicit Clicks(Stage& stage) : form(stage.show(kOne)) {
    form.First.onClick([this] { ++first; });
    form.Second.onClick([this] { ++second; });
    form.PanelSecond.onClick([this] { ++inPanel; });
  }

  TrialForm& form;
  int first = 0;
  int second = 0;
  int inPanel = 0;
};

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

  void arrowsMoveNoFocusAmongButtons() {
    Stage stage;
    const Clicks clicks(stage);
    clicks.form.First.setFocus();
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up}) {
      stage.tap(key);
      QVERIFY(clicks.form.First.hasFocus());
    }
  }

  void theFocusGoesOnWhenItsButtonIsDisabled() {
    Stage stage;
    const Clicks clicks(stage);
    clicks.form.Second.setEnabled(false);
    clicks.form.First.setFocus();
    clicks.form.First.setEnabled(false);
    QVERIFY(clicks.form.Third.hasFocus());
  }

  void theFocusGoesOnWhenItsButtonIsHidden() {
    Stage stage;
    const Clicks clicks(stage);
    clicks.form.First.setFocus();
    clicks.form.First.setVisible(false);
    QVERIFY(clicks.form.Second.hasFocus());
    // From the last control it goes on with the first that can take it.
    clicks.form.Number[2].setFocus();
    clicks.form.Number[2].setVisible(false);
    QVERIFY(clicks.form.Second.hasFocus());
  }

  void whereNothingCanTakeTheFocusNothingHasIt() {
    Stage stage;
    const Clicks clicks(stage);
    clicks.form.First.setFocus();
    for (platform::Control* control : clicks.form.controls()) control->setEnabled(false);
    stage.tap(Qt::Key_Space);
    stage.tap(Qt::Key_Tab);
    QCOMPARE(clicks.first, 0);
    for (const platform::Control* control : clicks.form.controls()) {
      QVERIFY(!control->hasFocus());
    }
  }

  void whereNothingElseCanTakeTheFocusHidingLeavesItNowhere() {
    Stage stage;
    const Clicks clicks(stage);
    clicks.form.First.setFocus();
    for (platform::Control* control : clicks.form.controls()) {
      if (control != &clicks.form.First) control->setEnabled(false);
    }
    clicks.form.First.setVisible(false);
    QVERIFY(!clicks.form.First.hasFocus());
    QCOMPARE(QApplication::focusWidget(), nullptr);
  }

  void givingTheFocusToWhatCannotTakeItDoesNothing() {
    Stage stage;
    const Clicks clicks(stage);
    clicks.form.First.setFocus();
    clicks.form.Second.setEnabled(false);
    clicks.form.Third.setVisible(false);
    clicks.form.Second.setFocus();
    QVERIFY(clicks.form.First.hasFocus());
    clicks.form.Third.setFocus();
    QVERIFY(clicks.form.First.hasFocus());
    clicks.form.MenuAct.setFocus();
    QVERIFY(clicks.form.First.hasFocus());
    clicks.form.PanelSecond.setFocus();
    QVERIFY(clicks.form.First.hasFocus());
    // Once it can, it does not come by itself.
    clicks.form.Second.setEnabled(true);
    QVERIFY(clicks.form.First.hasFocus());
  }

  void theFocusCanBeSeenOnAFaceOfAnyColour() {
    Stage stage;
    const Clicks clicks(stage);
    for (const platform::Button* button : {&clicks.form.First, &clicks.form.Number[0]}) {
      clicks.form.Third.setFocus();
      const QImage without = button->widget()->grab().toImage();
      button->widget()->setFocus();
      const QImage with = button->widget()->grab().toImage();
      // Two pixels at least, three to one, in the middle of each side.
      int changed = 0;
      for (int y = 0; y < with.height() / 2; ++y) {
        const QColor before = without.pixelColor(with.width() / 2, y);
        const QColor after = with.pixelColor(with.width() / 2, y);
        if (platform::contrast(before, after) >= 3) ++changed;
      }
      QVERIFY(changed >= 2);
    }
  }

  void aButtonIsSpokenByItsCaptionOrElseByItsToolTip() {
    Stage stage;
    const Clicks clicks(stage);
    const auto spoken = [](const platform::Button& button) {
      return QAccessible::queryAccessibleInterface(button.widget())->text(QAccessible::Name);
    };
    QCOMPARE(spoken(clicks.form.First), QStringLiteral("First"));
    clicks.form.First.setCaption(QStringLiteral("a&vanti"));
    QCOMPARE(spoken(clicks.form.First), QStringLiteral("avanti"));
    clicks.form.First.setCaption(QStringLiteral(" "));
    clicks.form.First.setToolTip(QStringLiteral("Forward"));
    QCOMPARE(spoken(clicks.form.First), QStringLiteral("Forward"));
  }
};

const prova::Iscrizione<ButtonTest, QApplication> kIscritta;
#include "button_test.moc"
