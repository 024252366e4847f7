#include "platform/forms/keys/key_guard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

#include "keys/sent_keys.h"
#include "platform/forms/qt_message_boxes.h"
#include "stage.h"
#include "support/iscrizione.h"

namespace key_guard_test {

using platform::KeyGuard;
using platform::RepeatMarks;
using trial::kOne;
using trial::send;
using trial::Stage;
using trial::TrialForm;

namespace {

// The box that is open, as an unmarried window.
QMessageBox* openBox() {
  return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

}  // namespace

// What the guard in front of the windows lets through.
class KeyGuardTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aHoldOnAServerWithoutMarksIsOneAction_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("flagged");
    QTest::addColumn<int>("modifier");
    for (const bool flagged : {false, true}) {
      const QByteArray how = flagged ? "flagged" : "not flagged";
      QTest::newRow("Space, " + how) << int(Qt::Key_Space) << flagged << int(Qt::NoModifier);
      QTest::newRow("Return, " + how) << int(Qt::Key_Return) << flagged << int(Qt::NoModifier);
      QTest::newRow("Alt+F, " + how) << int(Qt::Key_F) << flagged << int(Qt::AltModifier);
    }
  }
  void aHoldOnAServerWithoutMarksIsOneAction() {
    QFETCH(int, key);
    QFETCH(bool, flagged);
    QFETCH(int, modifier);
    const Qt::KeyboardModifiers with(modifier);
    const QString text = modifier == 0 ? QString() : QStringLiteral("f");
    Stage stage;
    TrialForm& form = stage.show(kOne);
    int clicks = 0;
    form.First.onClick([&clicks] { ++clicks; });
    form.First.setFocus();
    const KeyGuard guard(*stage.runtime, stage.runtime->forms(), stage.runtime->window(),
                         RepeatMarks::Unreliable);
    send(stage.window(), true, Qt::Key(key), 1000, false, with, text);
    for (quint64 i = 0; i < 90; ++i) {
      const quint64 stamp = 1660 + 25 * i;
      send(stage.window(), false, Qt::Key(key), stamp, flagged, with);
      send(stage.window(), true, Qt::Key(key), stamp, flagged, with, text);
    }
    QCOMPARE(clicks, key == Qt::Key_Space ? 0 : 1);
    send(stage.window(), false, Qt::Key(key), 4000, false, with);
    QTRY_COMPARE(clicks, 1);
    // What was kept back has come out; nothing is left to come.
    QTest::qWait(3 * int(platform::KeyState::kDeferral.count()));
    QCOMPARE(clicks, 1);
    send(stage.window(), true, Qt::Key(key), 5000, false, with, text);
    send(stage.window(), false, Qt::Key(key), 5060, false, with);
    QTRY_COMPARE(clicks, 2);
  }

  void twoTapsThatFollowFastAreTwoActionsInTheirOrder() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    int clicks = 0;
    form.First.onClick([&clicks] { ++clicks; });
    form.First.setFocus();
    const KeyGuard guard(*stage.runtime, stage.runtime->forms(), stage.runtime->window(),
                         RepeatMarks::Unreliable);
    send(stage.window(), true, Qt::Key_Space, 1000);
    send(stage.window(), false, Qt::Key_Space, 1040);
    send(stage.window(), true, Qt::Key_Space, 1070);
    QCOMPARE(clicks, 1);
    send(stage.window(), false, Qt::Key_Space, 1110);
    QTRY_COMPARE(clicks, 2);
  }

  void twoKeysHeldTogetherAreTwoHolds() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    int clicks = 0;
    form.First.onClick([&clicks] { ++clicks; });
    form.First.setFocus();
    stage.press(Qt::Key_Space);
    stage.press(Qt::Key_Return);
    for (int i = 0; i < 10; ++i) stage.repeat(Qt::Key_Return);
    stage.release(Qt::Key_Return);
    QCOMPARE(clicks, 1);
    stage.release(Qt::Key_Space);
    QCOMPARE(clicks, 2);
  }

  void overAnOpenMenuNoAccessKeyAndNoShortcutOfThePageActs() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    QStringList done;
    form.First.onClick([&done] { done.append(QStringLiteral("access key")); });
    form.MenuKeyed.onClick([&done] { done.append(QStringLiteral("shortcut")); });
    stage.tap(Qt::Key_M, Qt::AltModifier, QStringLiteral("m"));
    QVERIFY(QApplication::activePopupWidget() != nullptr);
    stage.tap(Qt::Key_F, Qt::AltModifier, QStringLiteral("f"));
    stage.tap(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(done, QStringList());
    QApplication::activePopupWidget()->close();
    stage.tap(Qt::Key_F, Qt::AltModifier, QStringLiteral("f"));
    stage.tap(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(done, (QStringList{QStringLiteral("access key"), QStringLiteral("shortcut")}));
  }

  void aWindowThatLosesTheFocusWithAKeyDownClicksNothing() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    int clicks = 0;
    form.First.onClick([&clicks] { ++clicks; });
    form.First.setFocus();
    stage.press(Qt::Key_Space);
    QVERIFY(static_cast<QAbstractButton*>(form.First.widget())->isDown());
    QWidget other;
    other.show();
    other.activateWindow();
    QCoreApplication::processEvents();
    QVERIFY(!stage.runtime->window().isActiveWindow());
    QVERIFY(!static_cast<QAbstractButton*>(form.First.widget())->isDown());
    stage.runtime->window().activateWindow();
    QCoreApplication::processEvents();
    form.First.setFocus();
    // Still held, and then let go: of a press that is forgotten.
    for (int i = 0; i < 5; ++i) stage.repeat(Qt::Key_Space);
    stage.release(Qt::Key_Space);
    QCOMPARE(clicks, 0);
    stage.tap(Qt::Key_Space);
    QCOMPARE(clicks, 1);
  }

  void aMessageBoxTakesNoKeyUntilThoseHeldAtItsOpeningAreLetGo() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    platform::QtMessageBoxes real(
        [] {
          return platform::ButtonWords{QStringLiteral("OK"), QStringLiteral("Yes"),
                                       QStringLiteral("No")};
        },
        [&] { return &stage.runtime->window(); });
    stage.boxes.mentreAperto = [&] { real.show(stage.boxes.mostrati.back()); };
    form.First.onClick([&] { stage.runtime->showBox({.text = QStringLiteral("Look")}); });
    form.First.setFocus();
    bool stayedOpen = false;
    bool otherKeyDropped = false;
    QTimer::singleShot(0, this, [&] {
      QMessageBox* box = openBox();
      QWindow* window = box->windowHandle();
      for (int i = 0; i < 10; ++i) {
        QTest::simulateEvent(window, false, Qt::Key_Return, {}, {}, true);
        QTest::simulateEvent(window, true, Qt::Key_Return, {}, {}, true);
      }
      stayedOpen = box->isVisible();
      QTest::simulateEvent(window, true, Qt::Key_Space, {}, {}, false);
      QTest::simulateEvent(window, false, Qt::Key_Space, {}, {}, false);
      otherKeyDropped = box->isVisible();
      QTest::simulateEvent(window, false, Qt::Key_Return, {}, {}, false);
      if (!box->isVisible()) return;
      QTest::simulateEvent(window, true, Qt::Key_Return, {}, {}, false);
    });
    stage.press(Qt::Key_Return);
    QVERIFY(stayedOpen);
    QVERIFY(otherKeyDropped);
    QVERIFY(openBox() == nullptr);
    // The release of the Enter that closed the box is not the form's.
    stage.release(Qt::Key_Return);
    QCOMPARE(stage.boxes.mostrati.size(), std::size_t(1));
  }

  void aKeyLetGoInAnotherProgramKeepsNoBoxDeaf() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    platform::QtMessageBoxes real([] { return platform::ButtonWords{}; },
                                  [&] { return &stage.runtime->window(); });
    stage.boxes.mentreAperto = [&] { real.show(stage.boxes.mostrati.back()); };
    form.First.onClick([&] { stage.runtime->showBox({.text = QStringLiteral("Look")}); });
    form.First.setFocus();
    bool closed = false;
    QTimer::singleShot(0, this, [&] {
      const QPointer<QMessageBox> box = openBox();
      QWindow* window = box->windowHandle();
      // The keyboard goes to another program, which gets the release, and comes back.
      Q_EMIT qApp->focusWindowChanged(nullptr);
      Q_EMIT qApp->focusWindowChanged(window);
      QTest::qWait(500);
      QTest::simulateEvent(window, true, Qt::Key_Return, {}, {}, false);
      closed = !box->isVisible();
      if (!closed) box->close();
    });
    stage.press(Qt::Key_Return);
    QVERIFY(closed);
  }

  void digitsAndBackspaceMayRepeatInATextBoxAndNothingElse() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    QLineEdit box(form.page());
    box.show();
    box.setFocus();
    stage.press(Qt::Key_7, {}, QStringLiteral("7"));
    for (int i = 0; i < 3; ++i) stage.repeat(Qt::Key_7, {}, QStringLiteral("7"));
    stage.release(Qt::Key_7);
    QCOMPARE(box.text(), QStringLiteral("7777"));
    stage.press(Qt::Key_Backspace);
    stage.repeat(Qt::Key_Backspace);
    stage.release(Qt::Key_Backspace);
    QCOMPARE(box.text(), QStringLiteral("77"));
    stage.press(Qt::Key_X, {}, QStringLiteral("x"));
    stage.repeat(Qt::Key_X, {}, QStringLiteral("x"));
    stage.release(Qt::Key_X);
    QCOMPARE(box.text(), QStringLiteral("77x"));
  }

  void aDigitThatWentDownUnheardDoesNotRepeat() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    QLineEdit box(form.page());
    box.show();
    box.setFocus();
    const QString five = QStringLiteral("5");
    form.run([&] { stage.runtime->waitDeaf([&] { stage.press(Qt::Key_5, {}, five); }); });
    for (int i = 0; i < 3; ++i) stage.repeat(Qt::Key_5, {}, five);
    stage.release(Qt::Key_5);
    QCOMPARE(box.text(), QString());
    // One that was held over another window.
    stage.press(Qt::Key_5, {}, five);
    Q_EMIT qApp->focusWindowChanged(nullptr);
    Q_EMIT qApp->focusWindowChanged(stage.window());
    for (int i = 0; i < 3; ++i) stage.repeat(Qt::Key_5, {}, five);
    QCOMPARE(box.text(), five);
    stage.release(Qt::Key_5);
    stage.press(Qt::Key_5, {}, five);
    stage.repeat(Qt::Key_5, {}, five);
    QCOMPARE(box.text(), five + five + five);
  }
};

const prova::Iscrizione<KeyGuardTest, QApplication> kIscritta;

}  // namespace key_guard_test

#include "key_guard_test.moc"
