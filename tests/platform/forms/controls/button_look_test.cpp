#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QImage>

#include "clicks.h"
#include "platform/forms/controls/answer_mark.h"
#include "platform/forms/text_block.h"
#include "support/iscrizione.h"

namespace button_look_test {

using trial::Clicks;
using trial::Stage;

namespace {

QImage pictureOf(const platform::Button& button) {
  return button.widget()->grab().toImage();
}

// In the middle of the lower left quarter, clear of words and edges.
QColor faceOf(const platform::Button& button) {
  const QImage picture = pictureOf(button);
  return picture.pixelColor(picture.width() / 12, picture.height() * 2 / 3);
}

// The place of what is written, without the edges of the button.
QRect inkOf(const platform::Button& button) {
  const QImage picture = pictureOf(button);
  QRect ink;
  for (int y = 10; y < picture.height() - 10; ++y) {
    for (int x = 10; x < picture.width() - 10; ++x) {
      if (picture.pixelColor(x, y).lightness() < 90) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

}  // namespace

// How a button answers the hand: lit below the mouse, sunk while it is held.
class ButtonLookTest : public QObject {
  Q_OBJECT

  // Somewhere on the form where no button is.
  static constexpr QPoint kAside{5, 5};

  static void point(Stage& stage, const platform::Button& button) {
    stage.moveMouse(stage.centre(button));
    QCoreApplication::processEvents();
  }
  static void pointAside(Stage& stage) {
    stage.moveMouse(kAside);
    QCoreApplication::processEvents();
  }
  // Its words lie lower than before and its face is not lighter.
  static bool isSunk(const platform::Button& button, const QRect& ink, const QColor& face) {
    return inkOf(button).top() >= ink.top() + 2 && inkOf(button).height() == ink.height() &&
           faceOf(button).lightness() < face.lightness();
  }

 private Q_SLOTS:
  void aButtonIsLitWhileTheMouseIsOverIt_data() {
    QTest::addColumn<bool>("colored");
    QTest::newRow("a plain one") << false;
    QTest::newRow("a coloured one") << true;
  }
  void aButtonIsLitWhileTheMouseIsOverIt() {
    QFETCH(bool, colored);
    Stage stage;
    Clicks clicks(stage);
    platform::Button& button = colored ? clicks.form.Number[1] : clicks.form.First;
    if (colored) button.setBackColor({255, 0, 0});
    pointAside(stage);
    const QImage before = pictureOf(button);
    const QColor face = faceOf(button);
    point(stage, button);
    QVERIFY(faceOf(button).lightness() >= face.lightness() + 7);
    QVERIFY(pictureOf(button).pixelColor(before.width() / 2, 0).lightness() < 60);
    // No other is.
    QCOMPARE(faceOf(clicks.form.Second), faceOf(clicks.form.Third));
    pointAside(stage);
    QCOMPARE(pictureOf(button), before);
  }

  void aButtonThatCannotBePressedDoesNotAnswerTheMouse() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.First.setEnabled(false);
    clicks.form.Second.setFocus();
    pointAside(stage);
    const QImage before = pictureOf(clicks.form.First);
    point(stage, clicks.form.First);
    QCOMPARE(pictureOf(clicks.form.First), before);
    stage.pressMouse(clicks.form.First);
    QCOMPARE(pictureOf(clicks.form.First), before);
    stage.releaseMouse(stage.centre(clicks.form.First));
    QCOMPARE(pictureOf(clicks.form.First), before);
  }

  void whatBecameOfAnAnswerIsNotLitAway() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.Number[1].markAnswer(platform::AnswerMark::Wrong);
    pointAside(stage);
    const QImage before = pictureOf(clicks.form.Number[1]);
    point(stage, clicks.form.Number[1]);
    QCOMPARE(pictureOf(clicks.form.Number[1]), before);
  }

  void theMouseHoldsItDownAndLetsItUp() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.Second.setFocus();
    pointAside(stage);
    const QImage before = pictureOf(clicks.form.First);
    const QColor face = faceOf(clicks.form.First);
    const QRect ink = inkOf(clicks.form.First);
    stage.pressMouse(clicks.form.First);
    QVERIFY(isSunk(clicks.form.First, ink, face));
    stage.releaseMouse(stage.centre(clicks.form.First));
    QCOMPARE(inkOf(clicks.form.First), ink);
    pointAside(stage);
    clicks.form.Second.setFocus();
    QCOMPARE(pictureOf(clicks.form.First), before);
  }

  void aKeyHoldsItDownUntilItsRelease_data() {
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter of the keypad") << int(Qt::Key_Enter);
    QTest::newRow("Space") << int(Qt::Key_Space);
  }
  void aKeyHoldsItDownUntilItsRelease() {
    QFETCH(int, key);
    Stage stage;
    Clicks clicks(stage);
    pointAside(stage);
    clicks.form.First.setFocus();
    const QImage before = pictureOf(clicks.form.First);
    const QColor face = faceOf(clicks.form.First);
    const QRect ink = inkOf(clicks.form.First);
    stage.press(Qt::Key(key));
    QVERIFY(isSunk(clicks.form.First, ink, face));
    stage.release(Qt::Key(key));
    QCOMPARE(pictureOf(clicks.form.First), before);
    QCOMPARE(clicks.first, 1);
  }

  void aButtonThatItsOwnClickDisablesIsNotLeftSunk() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.First.onClick([&] { clicks.form.First.setEnabled(false); });
    pointAside(stage);
    clicks.form.First.setFocus();
    stage.press(Qt::Key_Return);
    clicks.form.First.setEnabled(true);
    clicks.form.First.setFocus();
    const QImage still = pictureOf(clicks.form.First);
    stage.release(Qt::Key_Return);
    QCOMPARE(pictureOf(clicks.form.First), still);
  }

  void aFocusThatGoesLetsItUp() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.Second.setFocus();
    pointAside(stage);
    const QImage before = pictureOf(clicks.form.First);
    clicks.form.First.setFocus();
    stage.press(Qt::Key_Return);
    clicks.form.Second.setFocus();
    QCOMPARE(pictureOf(clicks.form.First), before);
  }

  void theRingOfTheFocusIsSeenOnAButtonThatIsLitOrHeld() {
    Stage stage;
    Clicks clicks(stage);
    clicks.form.First.setFocus();
    const auto ring = [&] {
      const QImage picture = pictureOf(clicks.form.First);
      int dark = 0;
      for (int x = 0; x < 6; ++x) {
        dark += int(picture.pixelColor(x, picture.height() / 2) == QColor(10, 20, 90));
      }
      return dark;
    };
    pointAside(stage);
    const int whole = ring();
    QVERIFY(whole >= 2);
    point(stage, clicks.form.First);
    QCOMPARE(ring(), whole);
    stage.pressMouse(clicks.form.First);
    QCOMPARE(ring(), whole);
  }

  void nothingGoesOnWhileAButtonIsLitOrHeld() {
    Stage stage;
    Clicks clicks(stage);
    const auto timers = [&] {
      return QAbstractEventDispatcher::instance()
          ->registeredTimers(clicks.form.First.widget())
          .size();
    };
    point(stage, clicks.form.First);
    QCOMPARE(timers(), 0);
    stage.pressMouse(clicks.form.First);
    QCOMPARE(timers(), 0);
  }

  void aCellKeepsItsSizeWhileItIsLitOrHeld() {
    Stage stage;
    Clicks clicks(stage);
    platform::Button& cell = clicks.form.Number[1];
    cell.makeCell({});
    pointAside(stage);
    const auto edge = [&] {
      const QImage picture = pictureOf(cell);
      return std::pair(picture.pixelColor(picture.width() / 2, 0),
                       picture.pixelColor(0, picture.height() / 2));
    };
    const auto before = edge();
    point(stage, cell);
    QCOMPARE(edge(), before);
    stage.pressMouse(cell);
    QCOMPARE(edge(), before);
  }
};

const prova::Iscrizione<ButtonLookTest, QApplication> kIscritta;

}  // namespace button_look_test

#include "button_look_test.moc"
