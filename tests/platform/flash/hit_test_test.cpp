#include "platform/flash/hit_test.h"

#include <QTest>

#include "painted.h"
#include "pointer_bench.h"
#include "support/iscrizione.h"

namespace hit_test_test {

using namespace hand_made;
using namespace pointer_bench;
using platform::flash::Property;

// What lies under the mouse.
class HitTestTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
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
    movie.player.setProperty(QStringLiteral("c"), Property::Visible, QStringLiteral("0"));
    movie.click(inside);
    QCOMPARE(movie.take(), QStringList());
    QVERIFY(!movie.player.showsHand());
    movie.player.setProperty(QStringLiteral("c"), Property::Visible, QStringLiteral("1"));
    QVERIFY(movie.player.showsHand());
  }

  void whatIsTransparentCanBeClicked() {
    Running movie(looks() + tellingButton(5) + sprite(6, place(1, 5) + showFrame()) +
                  place(1, 6, 0, 0, "c") + showFrame());
    movie.player.setProperty(QStringLiteral("c"), Property::Alpha, QStringLiteral("0"));
    movie.click(inside);
    QCOMPARE(movie.take(), words("rollOver press release"));
  }

  void theHandGoesWhenWhatLiesUnderItIsHidden() {
    Running movie(looks() + tellingButton(5) + sprite(6, place(1, 5) + showFrame()) +
                  place(1, 6, 0, 0, "c") + showFrame());
    movie.click(inside);
    (void)movie.take();
    movie.player.setProperty(QStringLiteral("c"), Property::Visible, QStringLiteral("0"));
    QVERIFY(!movie.player.showsHand());
    movie.player.tick();
    QCOMPARE(movie.take(), words("rollOut"));
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
    movie.player.setProperty(QStringLiteral("c"), Property::X, QStringLiteral("60"));
    movie.player.setProperty(QStringLiteral("c"), Property::ScaleX, QStringLiteral("200"));
    movie.player.mouseMove({95, 10});
    QVERIFY(movie.player.showsHand());
    movie.player.mouseMove({55, 10});
    QVERIFY(!movie.player.showsHand());
  }

  void aLineInAnUnevenScaleIsHitWhereItIsDrawn_data() {
    QTest::addColumn<QString>("scaleX");
    QTest::addColumn<QString>("scaleY");
    QTest::newRow("squeezed") << "25"
                              << "100";
    QTest::newRow("the other way") << "100"
                                   << "25";
  }
  void aLineInAnUnevenScaleIsHitWhereItIsDrawn() {
    // A line down, eight pixels wide; the root of a quarter of the area leaves four of them.
    QFETCH(QString, scaleX);
    QFETCH(QString, scaleY);
    Bits records;
    records.raw("0010 0001");
    painted::begin(records, 0, 0, 1, 0, 0);
    painted::edge(records, 0, 1600).raw("000000");
    const QByteArray line =
        painted::shape(2, u8(0) + u8(1) + u16(160) + u8(0) + u8(0) + u8(0), records);
    Running movie(line + tag(34, u16(5) + u8(0) + u16(0) + record(8, 1, true) + u8(0)) +
                  sprite(6, place(1, 5) + showFrame()) + place(1, 6, 50, 0, "c") + showFrame());
    movie.player.setProperty(QStringLiteral("c"), Property::ScaleX, scaleX);
    movie.player.setProperty(QStringLiteral("c"), Property::ScaleY, scaleY);
    for (const double side : {-1.0, 1.0}) {
      movie.player.mouseMove({50 + side * 1.5, 10});
      QVERIFY(movie.player.showsHand());
      movie.player.mouseMove({50 + side * 2.5, 10});
      QVERIFY(!movie.player.showsHand());
    }
  }

  void aRootThatIsMovedIsHitWhereItIsSeenAndAHiddenOneNowhere() {
    Running movie(looks() + tellingButton(5) + sprite(6, place(1, 5) + showFrame()) +
                  place(1, 6, 0, 0, "c") + showFrame());
    movie.player.setProperty({}, Property::X, QStringLiteral("30"));
    QCOMPARE(movie.player.placeOf(QStringLiteral("c")), QRectF(600, 0, 400, 400));
    movie.click({10, 10});
    QCOMPARE(movie.take(), QStringList());
    QVERIFY(!movie.player.showsHand());
    movie.click({40, 10});
    QCOMPARE(movie.take(), words("rollOver press release"));
    movie.player.setProperty({}, Property::Visible, QStringLiteral("0"));
    movie.click({40, 10});
    QCOMPARE(movie.take(), words("rollOut"));
    QVERIFY(!movie.player.showsHand());
  }
};

const prova::Iscrizione<HitTestTest> kIscritta;

}  // namespace hit_test_test

#include "hit_test_test.moc"
