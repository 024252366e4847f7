#include "platform/flash/pointer.h"

#include <QStringList>
#include <QTest>

#include "hand_made.h"
#include "platform/flash/player.h"
#include "platform/flash/renderer.h"

using namespace hand_made;
using platform::flash::Player;
using platform::flash::Renderer;

namespace {

// The transitions of the mouse as DefineButton2 stores them.
constexpr unsigned idleToOverUp = 1;
constexpr unsigned overUpToIdle = 2;
constexpr unsigned overUpToOverDown = 4;
constexpr unsigned overDownToOverUp = 8;
constexpr unsigned overDownToOutDown = 16;
constexpr unsigned outDownToOverDown = 32;
constexpr unsigned outDownToIdle = 64;
constexpr unsigned idleToOverDown = 128;
constexpr unsigned overDownToIdle = 256;

QByteArray record(unsigned states, unsigned id, bool second, int x = 0, unsigned depth = 1) {
  return u8(states) + u16(id) + u16(depth) + shift(x * 20, 0) +
         (second ? Bits().raw("0 0 0000").bytes() : QByteArray());
}

// A button whose hit state is the square of 20 pixels (character 1) and which tells every
// transition; it looks red, green and blue (characters 2, 3, 4).
QByteArray tellingButton(unsigned id, bool menu = false) {
  struct Row {
    unsigned events;
    const char* word;
  };
  const QList<Row> rows{{idleToOverUp, "rollOver"},        {overUpToIdle, "rollOut"},
                        {overUpToOverDown, "press"},       {overDownToOverUp, "release"},
                        {overDownToOutDown, "dragOut"},    {outDownToOverDown, "dragOver"},
                        {outDownToIdle, "releaseOutside"}, {idleToOverDown, "menuOver"},
                        {overDownToIdle, "menuOut"}};
  const QByteArray records =
      record(1, 2, true) + record(2, 3, true) + record(4, 4, true) + record(8, 1, true) + u8(0);
  QByteArray handlers;
  for (qsizetype i = 0; i < rows.size(); ++i) {
    const QByteArray body = u16(rows[i].events) + tell(rows[i].word) + u8(0);
    const bool last = i + 1 == rows.size();
    handlers += u16(last ? 0 : unsigned(body.size()) + 2) + body;
  }
  return tag(34,
             u16(id) + u8(menu ? 1 : 0) + u16(unsigned(records.size()) + 2) + records + handlers);
}

// The characters that the button needs.
QByteArray looks() {
  return square(1, 20, 0) + square(2, 20, 0xFF0000) + square(3, 20, 0x00FF00) +
         square(4, 20, 0x0000FF);
}

struct Running {
  explicit Running(const QByteArray& tags, int version = 6)
      : player(movie(file(tags, version)), [this](const QString& command, const QString& args) {
          told << (args.isEmpty() ? command : command + u' ' + args);
        }) {}

  QStringList take() { return std::exchange(told, {}); }
  QRgb colorAt(int x, int y) {
    QImage image(100, 100, QImage::Format_RGB32);
    Renderer().paint(player.scene(), QTransform::fromScale(0.05, 0.05), 0xFFFFFFFF, image);
    return image.pixel(x, y);
  }
  void click(QPointF point) {
    player.mouseMove(point);
    player.mousePress(point);
    player.mouseRelease(point);
  }

  QStringList told;
  Player player;
};

QStringList words(const char* text) {
  return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

// PlaceObject2 with handlers of version 6: pairs of event bits and words that are told.
QByteArray placeWithHandlers(unsigned depth, unsigned id, int x,
                             std::initializer_list<std::pair<unsigned, const char*>> handlers) {
  QByteArray records;
  for (const auto& [events, word] : handlers) {
    const QByteArray actions = tell(word) + u8(0);
    records += u32(events) + u32(std::uint32_t(actions.size())) + actions;
  }
  return tag(26, u8(0x86) + u16(depth) + u16(id) + shift(x * 20, 0) + u16(0) + u32(0xFFFF) +
                     records + u32(0));
}

constexpr QPointF inside(10, 10);
constexpr QPointF outside(50, 50);

}  // namespace

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

  void recordsOfTheSecondButtonHaveColours() {
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

  void defineButtonCxformColoursTheFirstButton() {
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
                                          u16(0) + u16(overDownToOverUp) + actions);
    Running movie(square(1, 20, 0) + button + sprite(6, place(1, 5) + showFrame()) +
                  place(1, 6, 0, 0, "ua0") + place(2, 6, 40, 0, "ua1") + showFrame());
    movie.click({10, 10});
    movie.click({50, 10});
    QCOMPARE(movie.take(), (QStringList{QStringLiteral("ua0 unitainattesa"),
                                        QStringLiteral("ua1 unitainattesa")}));
  }

  void onlyTheHitStateCountsEvenWhenNothingIsSeen() {
    const QByteArray records = record(8, 1, true, 30) + record(1, 2, true) + u8(0);
    Running movie(looks() + tag(34, u16(5) + u8(0) + u16(0) + records) + place(1, 5) + showFrame());
    movie.player.mouseMove({10, 10});
    QVERIFY(!movie.player.showsHand());
    movie.player.mouseMove({40, 10});
    QVERIFY(movie.player.showsHand());
  }

  void theHitStateIsTheExactOutline() {
    // A triangle: the lower left half of 20 pixels.
    Bits records;
    records.raw("0001 0000  0 00101 10001").number(17, 0).number(17, 0).raw("1");
    records.raw("1 1 1111 1").number(17, 400).number(17, 400);
    records.raw("1 1 1111 1").number(17, -400).number(17, 0);
    records.raw("1 1 1111 1").number(17, 0).number(17, -400).raw("000000");
    const QByteArray triangle = tag(2, u16(1) + rect(0, 400, 0, 400) + u8(1) + u8(0) + u8(0) +
                                           u8(0) + u8(0) + u8(0) + records.bytes());
    Running movie(triangle + tag(34, u16(5) + u8(0) + u16(0) + record(8, 1, true) + u8(0)) +
                  place(1, 5) + showFrame());
    movie.player.mouseMove({5, 15});
    QVERIFY(movie.player.showsHand());
    movie.player.mouseMove({15, 5});
    QVERIFY(!movie.player.showsHand());
  }

  void theFrontmostButtonWins() {
    const auto button = [](unsigned id, const char* word) {
      return tag(7, u16(id) + record(8, 1, false) + u8(0) + tell(word) + u8(0));
    };
    Running movie(square(1, 20, 0) + button(5, "low") + button(6, "high") + place(3, 6) +
                  place(2, 5) + showFrame());
    movie.click(inside);
    QCOMPARE(movie.take(), words("high"));
  }

  void shapesAndClipsWithoutHandlersLetTheMouseThrough() {
    Running movie(looks() + tellingButton(5) + place(1, 5) + place(2, 2) +
                  sprite(7, place(1, 3) + showFrame()) + place(3, 7) + showFrame());
    movie.player.mouseMove(inside);
    QCOMPARE(movie.take(), words("rollOver"));
  }

  void whatIsHiddenOrInAHiddenClipCannotBeClicked() {
    Running movie(looks() + tellingButton(5) + sprite(6, place(1, 5) + showFrame()) +
                  place(1, 6, 0, 0, "c") + showFrame());
    movie.player.setProperty(QStringLiteral("c"), 7, QStringLiteral("0"));
    movie.click(inside);
    QCOMPARE(movie.take(), QStringList());
    QVERIFY(!movie.player.showsHand());
    movie.player.setProperty(QStringLiteral("c"), 7, QStringLiteral("1"));
    QVERIFY(movie.player.showsHand());
  }

  void whatIsTransparentCanBeClicked() {
    Running movie(looks() + tellingButton(5) + sprite(6, place(1, 5) + showFrame()) +
                  place(1, 6, 0, 0, "c") + showFrame());
    movie.player.setProperty(QStringLiteral("c"), 6, QStringLiteral("0"));
    movie.click(inside);
    QCOMPARE(movie.take(), words("rollOver press release"));
  }

  void theHandGoesWhenWhatLiesUnderItIsHidden() {
    Running movie(looks() + tellingButton(5) + sprite(6, place(1, 5) + showFrame()) +
                  place(1, 6, 0, 0, "c") + showFrame());
    movie.click(inside);
    (void)movie.take();
    movie.player.setProperty(QStringLiteral("c"), 7, QStringLiteral("0"));
    QVERIFY(!movie.player.showsHand());
    movie.player.tick();
    QCOMPARE(movie.take(), words("rollOut"));
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

  void aDisabledButtonLetsTheMouseThrough() {
    const QByteArray disable = pushText("b") + action(0x1C) + pushText("enabled") +
                               action(0x96, u8(5) + u8(0)) + action(0x4F);
    Running movie(looks() + tellingButton(5) + place(1, 5, 0, 0, "b") + doAction(disable) +
                  showFrame());
    movie.player.mouseMove(inside);
    QVERIFY(!movie.player.showsHand());
    QCOMPARE(movie.take(), QStringList());
  }

  void whatAMaskHidesCannotBeClicked() {
    const QByteArray mask = tag(26, u8(0x46) + u16(1) + u16(8) + shift(0, 0) + u16(5));
    Running movie(looks() + rectangleShape(8, 0, 0, 200, 400, 0) + tellingButton(5) + mask +
                  place(2, 5) + showFrame());
    movie.player.mouseMove({5, 10});
    QVERIFY(movie.player.showsHand());
    movie.player.mouseMove({15, 10});
    QVERIFY(!movie.player.showsHand());
  }

  void clipsThatAreMovedAndScaledAreHitWhereTheyAreSeen() {
    Running movie(looks() + tellingButton(5) + sprite(6, place(1, 5) + showFrame()) +
                  place(1, 6, 0, 0, "c") + showFrame());
    movie.player.setProperty(QStringLiteral("c"), 0, QStringLiteral("60"));
    movie.player.setProperty(QStringLiteral("c"), 2, QStringLiteral("200"));
    movie.player.mouseMove({95, 10});
    QVERIFY(movie.player.showsHand());
    movie.player.mouseMove({55, 10});
    QVERIFY(!movie.player.showsHand());
  }

  void aButtonThatIsRemovedWhilePressedIsForgotten() {
    // Pressing it sends the root to its second frame, where it is gone.
    const QByteArray records = record(8, 1, true) + u8(0);
    const QByteArray button =
        tag(34, u16(5) + u8(0) + u16(unsigned(records.size()) + 2) + records + u16(0) +
                    u16(overUpToOverDown) + action(0x81, u16(1)) + u8(0));
    Running movie(square(1, 20, 0) + button + place(1, 5) + doAction(stop()) + showFrame() +
                  remove(1) + showFrame());
    movie.player.mousePress(inside);
    QCOMPARE(movie.player.currentFrame(), 2);
    movie.player.mouseRelease(inside);
    QVERIFY(!movie.player.showsHand());
  }
};

QTEST_APPLESS_MAIN(PointerTest)
#include "pointer_test.moc"
