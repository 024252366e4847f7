#include "platform/forms/keys/key_guard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>

#include "keys/sent_keys.h"
#include "stage.h"
#include "support/iscrizione.h"

Q_DECLARE_METATYPE(platform::RepeatMarks)

namespace key_release_test {

using platform::KeyGuard;
using platform::RepeatMarks;
using trial::kOne;
using trial::send;
using trial::Stage;
using trial::TrialForm;

namespace {

// As long as it lives a widget does not learn that it loses the focus.
class KeepsFocus final : public QObject {
 public:
  explicit KeepsFocus(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject* /*widget*/, QEvent* event) override {
    return event->type() == QEvent::FocusOut;
  }
};

// As on X11, where a menu takes the keyboard and leaves the focus with the window below.
void openOverPage(const Stage& stage, QMenu& menu) {
  const QSignalBlocker unheard(qApp);
  KeepsFocus keeps(*QApplication::focusWidget());
  menu.popup({0, 0});
  stage.window()->requestActivate();
  QCoreApplication::processEvents();
}

// The first button of a form, with the focus: how often it was clicked, and which releases of keys
// reached it.
class Pressed final : public QObject {
 public:
  explicit Pressed(Stage& stage) : form(stage.show(kOne)) {
    form.First.onClick([this] { ++clicks; });
    form.First.setFocus();
    form.First.widget()->installEventFilter(this);
  }
  bool eventFilter(QObject* /*widget*/, QEvent* event) override {
    if (event->type() == QEvent::KeyRelease) ++releases;
    return false;
  }
  [[nodiscard]] bool isDown() const {
    return static_cast<QAbstractButton*>(form.First.widget())->isDown();
  }

  TrialForm& form;
  int clicks = 0;
  int releases = 0;
};

// Until what was kept back has come out.
void letDeferredOut() {
  QTest::qWait(3 * int(platform::KeyState::kDeferral.count()));
}

}  // namespace

// Where the release of a key goes, and when it goes nowhere.
class KeyReleaseTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aReleaseThatIsKeptBackStillGoesToTheFocusOfItsMoment() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    QStringList clicked;
    form.First.onClick([&clicked] { clicked.append(QStringLiteral("first")); });
    form.Second.onClick([&clicked] { clicked.append(QStringLiteral("second")); });
    form.First.setFocus();
    const KeyGuard guard(*stage.runtime, stage.runtime->forms(), stage.runtime->window(),
                         RepeatMarks::Unreliable);
    send(stage.window(), true, Qt::Key_Space, 1000);
    form.Second.setFocus();
    send(stage.window(), false, Qt::Key_Space, 1100);
    QTRY_COMPARE(clicked, QStringList{QStringLiteral("second")});
  }

  void aReleaseThatIsKeptBackIsDroppedWhenThePageChanges() {
    Stage stage;
    stage.prepare["Two"] = [](TrialForm& two) {
      two.First.onClick([&two] { two.write(QStringLiteral("clicked")); });
    };
    TrialForm& form = stage.show(kOne);
    form.First.setFocus();
    const KeyGuard guard(*stage.runtime, stage.runtime->forms(), stage.runtime->window(),
                         RepeatMarks::Unreliable);
    send(stage.window(), true, Qt::Key_Space, 1000);
    send(stage.window(), false, Qt::Key_Space, 1100);
    stage.runtime->forms().show("Two");
    stage.current().First.setFocus();
    QTest::qWait(3 * int(platform::KeyState::kDeferral.count()));
    QVERIFY(!stage.log.contains(QStringLiteral("clicked")));
  }

  void aKeyWhoseReleaseWasLostIsLetGoWhenItIsPressedInAMenu() {
    Stage stage;
    const Pressed first(stage);
    const KeyGuard guard(*stage.runtime, stage.runtime->forms(), stage.runtime->window(),
                         RepeatMarks::Flagged);
    send(stage.window(), true, Qt::Key_Space, 1000);
    QVERIFY(first.isDown());
    QMenu menu;
    menu.addAction(QStringLiteral("Something"))->setEnabled(false);
    openOverPage(stage, menu);
    QVERIFY(first.isDown());
    send(stage.window(), true, Qt::Key_Space, 60000);
    QVERIFY(!first.isDown());
    menu.close();
    QCOMPARE(first.clicks, 0);
  }

  void aReleaseWithoutAPressDoesNothing() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    int clicks = 0;
    form.First.onClick([&clicks] { ++clicks; });
    form.First.setFocus();
    stage.release(Qt::Key_Space);
    stage.repeat(Qt::Key_Return);
    QCOMPARE(clicks, 0);
  }

  void theReleaseOfAKeyThatPressedAShortcutIsDropped() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    int shortcuts = 0;
    int clicks = 0;
    form.MenuKeyed.onClick([&shortcuts] { ++shortcuts; });
    form.First.onClick([&clicks] { ++clicks; });
    form.First.setCaption(QStringLiteral("&s"));
    form.First.setFocus();
    stage.press(Qt::Key_S, Qt::ControlModifier);
    stage.release(Qt::Key_S);
    QCOMPARE(shortcuts, 1);
    QCOMPARE(clicks, 0);
  }

  void theReleaseOfAKeyThatAMenuTookIsDropped() {
    Stage stage;
    TrialForm& form = stage.show(kOne);
    int clicks = 0;
    int chosen = 0;
    form.First.onClick([&clicks] { ++clicks; });
    form.MenuPlain.onClick([&] {
      ++chosen;
      form.First.setFocus();
    });
    form.First.setFocus();
    stage.tap(Qt::Key_M, Qt::AltModifier, QStringLiteral("m"));
    QWidget* menu = QApplication::activePopupWidget();
    QVERIFY(menu != nullptr);
    QWindow* menuWindow = menu->windowHandle();
    QTest::simulateEvent(menuWindow, true, Qt::Key_Down, {}, {}, false);
    QTest::simulateEvent(menuWindow, false, Qt::Key_Down, {}, {}, false);
    QTest::simulateEvent(menuWindow, true, Qt::Key_Return, {}, {}, false);
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
    QCOMPARE(chosen, 1);
    stage.release(Qt::Key_Return);
    // Neither is the hold of a key that began in the menu.
    for (int i = 0; i < 5; ++i) stage.repeat(Qt::Key_Return);
    QCOMPARE(clicks, 0);
  }

  void aKeyThatIsDownWhenAMenuOpensOverThePageIsLetGo() {
    Stage stage;
    const Pressed button(stage);
    stage.press(Qt::Key_Space);
    QMenu menu;
    menu.addAction(QStringLiteral("Something"));
    openOverPage(stage, menu);
    QCOMPARE(QGuiApplication::focusWindow(), stage.window());
    QCOMPARE(QApplication::activePopupWidget(), &menu);
    QVERIFY(button.isDown());
    stage.release(Qt::Key_Space);
    QVERIFY(!button.isDown());
    menu.close();
    QCOMPARE(button.clicks, 0);
    stage.tap(Qt::Key_Space);
    QCOMPARE(button.clicks, 1);
  }

  void aMenuHasItsKeysAloneAndLetsGoThoseOfThePageAlsoWhereReleasesAreKeptBack() {
    Stage stage;
    const Pressed button(stage);
    const KeyGuard guard(*stage.runtime, stage.runtime->forms(), stage.runtime->window(),
                         RepeatMarks::Unreliable);
    send(stage.window(), true, Qt::Key_Space, 1000);
    QMenu menu;
    menu.addAction(QStringLiteral("Something"))->setEnabled(false);
    openOverPage(stage, menu);
    QVERIFY(button.isDown());
    send(stage.window(), false, Qt::Key_Space, 1100);
    QTRY_VERIFY(!button.isDown());
    // A key that goes down and up while the menu stays open.
    send(stage.window(), true, Qt::Key_Space, 2000);
    send(stage.window(), false, Qt::Key_Space, 2100);
    letDeferredOut();
    QCOMPARE(QApplication::activePopupWidget(), &menu);
    QCOMPARE(button.releases, 0);
    QCOMPARE(button.clicks, 0);
  }

  void aKeyLetGoWhereNothingActsIsLetGoWithoutEffect_data() {
    QTest::addColumn<RepeatMarks>("marks");
    QTest::addColumn<bool>("left");
    for (const bool left : {true, false}) {
      const QByteArray where = left ? "next form loads" : "device is waited for";
      QTest::newRow((where + ", flagged repeats").constData()) << RepeatMarks::Flagged << left;
      QTest::newRow((where + ", no marks").constData()) << RepeatMarks::Unreliable << left;
    }
  }
  void aKeyLetGoWhereNothingActsIsLetGoWithoutEffect() {
    QFETCH(RepeatMarks, marks);
    QFETCH(bool, left);
    Stage stage;
    const Pressed button(stage);
    const KeyGuard guard(*stage.runtime, stage.runtime->forms(), stage.runtime->window(), marks);
    bool downBefore = false;
    bool downAfter = true;
    const auto letGo = [&] {
      downBefore = button.isDown();
      send(stage.window(), false, Qt::Key_Space, 1100);
      downAfter = !QTest::qWaitFor([&button] { return !button.isDown(); });
    };
    stage.prepare["Two"] = [&](TrialForm& two) { two.loading = letGo; };
    send(stage.window(), true, Qt::Key_Space, 1000);
    if (left) {
      stage.runtime->forms().show("Two");
    } else {
      button.form.run([&] { stage.runtime->waitDeaf(letGo); });
    }
    QVERIFY(downBefore && !downAfter);
    QCOMPARE(button.releases, 0);
    QCOMPARE(button.clicks, 0);
  }
};

const prova::Iscrizione<KeyReleaseTest, QApplication> kIscritta;

}  // namespace key_release_test

#include "key_release_test.moc"
