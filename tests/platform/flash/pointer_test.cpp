#include "platform/flash/pointer.h"

#include <QTest>

#include "pointer_bench.h"
#include "support/iscrizione.h"

namespace pointer_test {

using namespace hand_made;
using namespace pointer_bench;

class PointerTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aButtonTellsAllTransitionsOfTheMouse() {
    Running movie(looks() + tellingButton(5) + place(1, 5) + showFrame());
    movie.player.mouseMove(inside);
    QCOMPARE(movie.take(), words("rollOver"));
    movie.player.mousePress(inside);
    QCOMPARE(movie.take(), words("press"));
    movie.player.mouseMove(outside);
    QCOMPARE(movie.take(), words("dragOut"));
    movie.player.mouseMove(inside);
    QCOMPARE(movie.take(), words("dragOver"));
    movie.player.mouseRelease(inside);
    QCOMPARE(movie.take(), words("release"));
    movie.player.mouseMove(outside);
    QCOMPARE(movie.take(), words("rollOut"));
  }

  void lettingGoOutsideIsNoRelease() {
    Running movie(looks() + tellingButton(5) + place(1, 5) + showFrame());
    movie.player.mousePress(inside);
    movie.player.mouseMove(outside);
    movie.player.mouseRelease(outside);
    QCOMPARE(movie.take(), words("rollOver press dragOut releaseOutside"));
    movie.player.mouseMove(inside);
    QCOMPARE(movie.take(), words("rollOver"));
  }

  void aClickOutOfNowhereIsRollOverPressRelease() {
    Running movie(looks() + tellingButton(5) + place(1, 5) + showFrame());
    movie.player.mousePress(inside);
    movie.player.mouseRelease(inside);
    QCOMPARE(movie.take(), words("rollOver press release"));
  }

  void aPressElsewhereThatComesOverTheButtonDoesNothingUntilItIsLetGo() {
    Running movie(looks() + tellingButton(5) + place(1, 5) + showFrame());
    movie.player.mousePress(outside);
    movie.player.mouseMove(inside);
    QCOMPARE(movie.take(), QStringList());
    movie.player.mouseRelease(inside);
    QCOMPARE(movie.take(), words("rollOver"));
  }

  void leavingTheStageIsARollOut() {
    Running movie(looks() + tellingButton(5) + place(1, 5) + showFrame());
    movie.player.mouseMove(inside);
    movie.player.mouseLeave();
    QCOMPARE(movie.take(), words("rollOver rollOut"));
    QVERIFY(!movie.player.showsHand());
  }

  void aPressThatIsLetGoBesideTheStageEnds() {
    Running movie(looks() + tellingButton(5) + place(1, 5) + showFrame());
    movie.player.mousePress(inside);
    movie.player.mouseReleaseOutside();
    QCOMPARE(movie.take(), words("rollOver press dragOut releaseOutside"));
    movie.player.mouseMove(inside);
    QCOMPARE(movie.take(), words("rollOver"));
  }

  void aPressWhoseReleaseGotLostIsLetGoByTheNextOne() {
    const auto button = [](unsigned id, const char* word) {
      return tag(7, u16(id) + record(8, 1, false) + u8(0) + tell(word) + u8(0));
    };
    Running movie(looks() + tellingButton(5) + button(6, "second") + place(1, 5) + place(2, 6, 50) +
                  showFrame());
    movie.player.mousePress({10, 10});
    QCOMPARE(movie.take(), words("rollOver press"));
    movie.player.mousePress({60, 10});
    QCOMPARE(movie.take(), words("dragOut releaseOutside"));
    movie.player.mouseRelease({60, 10});
    QCOMPARE(movie.take(), words("second"));
  }

  void aMenuButtonTakesAPressThatBeganElsewhere() {
    Running movie(looks() + tellingButton(5, true) + place(1, 5) + showFrame());
    movie.player.mousePress(outside);
    movie.player.mouseMove(inside);
    QCOMPARE(movie.take(), words("menuOver"));
    movie.player.mouseMove(outside);
    QCOMPARE(movie.take(), words("menuOut"));
    movie.player.mouseMove(inside);
    movie.player.mouseRelease(inside);
    QCOMPARE(movie.take(), words("menuOver release"));
  }

  void aButtonShowsTheLookOfItsState() {
    Running movie(looks() + tellingButton(5) + place(1, 5) + showFrame());
    QCOMPARE(movie.colorAt(10, 10), 0xFFFF0000);
    movie.player.mouseMove(inside);
    QCOMPARE(movie.colorAt(10, 10), 0xFF00FF00);
    movie.player.mousePress(inside);
    QCOMPARE(movie.colorAt(10, 10), 0xFF0000FF);
    movie.player.mouseMove(outside);
    QCOMPARE(movie.colorAt(10, 10), 0xFF00FF00);  // dragged out it looks as if the mouse were over
    movie.player.mouseRelease(outside);
    QCOMPARE(movie.colorAt(10, 10), 0xFFFF0000);
  }

  void recordsOfTheSecondButtonHaveColors() {
    const QByteArray dark = Bits()
                                .raw("0 1 1010")
                                .number(10, 128)
                                .number(10, 256)
                                .number(10, 256)
                                .number(10, 256)
                                .bytes();
    const QByteArray records = u8(1) + u16(1) + u16(1) + shift(0, 0) + dark + u8(0);
    Running movie(square(1, 20, 0xFFFFFF) + tag(34, u16(5) + u8(0) + u16(0) + records) +
                  place(1, 5) + showFrame());
    QCOMPARE(movie.colorAt(10, 10), 0xFF80FFFF);
  }

  void defineButtonCxformColorsTheFirstButton() {
    const QByteArray noRed =
        Bits().raw("0 1 1010").number(10, 0).number(10, 256).number(10, 256).bytes();
    Running movie(square(1, 20, 0xFFFFFF) + tag(7, u16(5) + record(1, 1, false) + u8(0) + u8(0)) +
                  tag(23, u16(5) + noRed) + place(1, 5) + showFrame());
    QCOMPARE(movie.colorAt(10, 10), 0xFF00FFFF);
  }

  void theActionsOfTheFirstButtonRunOnRelease() {
    Running movie(square(1, 20, 0) +
                  tag(7, u16(5) + record(8, 1, false) + u8(0) + tell("clicked") + u8(0)) +
                  place(1, 5) + showFrame());
    movie.player.mousePress(inside);
    QCOMPARE(movie.take(), QStringList());
    movie.player.mouseRelease(inside);
    QCOMPARE(movie.take(), words("clicked"));
  }

  void oneButtonInManyNamedSpritesTellsThemApart() {
    // fscommand(this._name, "unitainattesa") on release.
    const QByteArray actions = pushText("FSCommand:") + pushText("this") + action(0x1C) +
                               pushText("_name") + action(0x4E) + action(0x47) +
                               pushText("unitainattesa") + action(0x9A, u8(0)) + u8(0);
    const QByteArray records = record(8, 1, true) + u8(0);
    const QByteArray button = tag(34, u16(5) + u8(0) + u16(unsigned(records.size()) + 2) + records +
                                          u16(0) + u16(kOverDownToOverUp) + actions);
    Running movie(square(1, 20, 0) + button + sprite(6, place(1, 5) + showFrame()) +
                  place(1, 6, 0, 0, "ua0") + place(2, 6, 40, 0, "ua1") + showFrame());
    movie.click({10, 10});
    movie.click({50, 10});
    QCOMPARE(movie.take(), (QStringList{QStringLiteral("ua0 unitainattesa"),
                                        QStringLiteral("ua1 unitainattesa")}));
  }

  void aClipWithHandlersOfAButtonTakesTheMouseAndButtonsWithinGetNone() {
    // Press is bit 10, release bit 11.
    Running movie(
        looks() + tellingButton(5) + sprite(6, place(1, 5) + showFrame()) +
        placeWithHandlers(1, 6, 0, {{1U << 10U, "press-clip"}, {1U << 11U, "release-clip"}}) +
        showFrame());
    movie.player.mouseMove(inside);
    QVERIFY(movie.player.showsHand());
    movie.player.mousePress(inside);
    movie.player.mouseRelease(inside);
    QCOMPARE(movie.take(), words("press-clip release-clip"));
    movie.player.mouseMove(outside);
    QVERIFY(!movie.player.showsHand());
  }

  void aClipTellsTheOtherEventsOfAButtonToo() {
    Running movie(looks() + sprite(6, place(1, 2) + showFrame()) +
                  placeWithHandlers(1, 6, 0,
                                    {{1U << 13U, "rollOver"},
                                     {1U << 14U, "rollOut"},
                                     {1U << 15U, "dragOver"},
                                     {1U << 16U, "dragOut"},
                                     {1U << 12U, "releaseOutside"}}) +
                  showFrame());
    movie.player.mousePress(inside);
    movie.player.mouseMove(outside);
    movie.player.mouseMove(inside);
    movie.player.mouseMove(outside);
    movie.player.mouseRelease(outside);
    movie.player.mouseMove(inside);
    movie.player.mouseMove(outside);
    QCOMPARE(movie.take(),
             words("rollOver dragOut dragOver dragOut releaseOutside rollOver rollOut"));
  }

  void mouseDownAndMouseUpFireAnywhereAndShowNoHand() {
    // mouseDown is bit 4, mouseUp bit 5, mouseMove bit 3.
    Running movie(
        looks() + sprite(6, place(1, 2) + showFrame()) +
        placeWithHandlers(1, 6, 0, {{1U << 4U, "down"}, {1U << 5U, "up"}, {1U << 3U, "move"}}) +
        showFrame());
    movie.click(outside);
    QCOMPARE(movie.take(), words("move down up"));
    movie.player.mouseMove(inside);
    QVERIFY(!movie.player.showsHand());
  }

  void aFunctionInAMemberMakesAClipAButton() {
    // clip.onRelease = function () { fscommand("released"); }
    const QByteArray body = tell("released");
    const QByteArray assign = pushText("c") + action(0x1C) + pushText("onRelease") +
                              action(0x9B, text("") + u16(0) + u16(unsigned(body.size()))) + body +
                              action(0x4F);
    Running movie(looks() + sprite(6, place(1, 2) + showFrame()) + place(1, 6, 0, 0, "c") +
                  doAction(assign) + showFrame());
    movie.player.mouseMove(inside);
    QVERIFY(movie.player.showsHand());
    movie.click(inside);
    QCOMPARE(movie.take(), words("released"));
  }

  void aButtonThatIsRemovedWhilePressedIsForgotten() {
    // Pressing it sends the root to its second frame, where it is gone.
    const QByteArray records = record(8, 1, true) + u8(0);
    const QByteArray button =
        tag(34, u16(5) + u8(0) + u16(unsigned(records.size()) + 2) + records + u16(0) +
                    u16(kOverUpToOverDown) + action(0x81, u16(1)) + u8(0));
    Running movie(square(1, 20, 0) + button + place(1, 5) + doAction(stop()) + showFrame() +
                  remove(1) + showFrame());
    movie.player.mousePress(inside);
    QCOMPARE(movie.player.currentFrame(), 2);
    movie.player.mouseRelease(inside);
    QVERIFY(!movie.player.showsHand());
  }
};

const prova::Iscrizione<PointerTest> kIscritta;

}  // namespace pointer_test

#include "pointer_test.moc"
