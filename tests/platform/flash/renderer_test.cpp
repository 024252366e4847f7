#include "painted.h"

#include "support/iscrizione.h"

namespace renderer_test {

using namespace painted;
using platform::flash::Property;

// Shapes: their fills, lines and styles.
class RendererTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theGroundHasTheMoviesBackgroundColor() {
    const QImage image = picture(tag(9, u8(10) + u8(20) + u8(30)) + showFrame());
    QCOMPARE(image.pixel(0, 0), qRgb(10, 20, 30));
    QCOMPARE(picture(showFrame()).pixel(5, 5), kWhite);
  }

  void aRectangleFillsExactlyItsPixels() {
    const QImage image = picture(shown(rectangleShape(1, 100, 60, 200, 160, 0x3366CC)));
    for (int y = 0; y < 20; ++y) {
      for (int x = 0; x < 20; ++x) {
        const bool inside = x >= 5 && x < 10 && y >= 3 && y < 8;
        QCOMPARE(image.pixel(x, y), inside ? 0xFF3366CC : kWhite);
      }
    }
  }

  void anEdgeWithinAPixelCoversItInProportion() {
    // 5.5 to 10.25 pixels across: half a pixel on the left, a quarter on the right.
    const QImage image = picture(shown(rectangleShape(1, 110, 60, 205, 165, 0x000000)));
    COMPARE_COLOR(image, 5, 5, 0xFF808080);
    COMPARE_COLOR(image, 6, 5, 0xFF000000);
    COMPARE_COLOR(image, 10, 5, 0xFFBFBFBF);
    COMPARE_COLOR(image, 7, 8, 0xFFBFBFBF);
  }

  void twoFillsThatShareAnEdgeShowNoSeam() {
    // Red on the left and green on the right of a slanting edge, on a black ground: nothing black
    // may shine through. The edge is drawn once, with fill0 on its one and fill1 on its other side.
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 1, 0, 133, 0);  // down the slanting edge, red (1) beside green (2)
    records = Bits();
    records.raw("0010 0001");
    begin(records, 1, 2, 0, 133, 400);  // upwards: left of it red, right of it green
    edge(records, 90, -400);
    begin(records, 0, 2, 0, 223, 0);
    edge(edge(edge(records, 177, 0), 0, 400), -267, 0);
    begin(records, 0, 1, 0, 133, 400);
    edge(edge(edge(records, -133, 0), 0, -400), 223, 0);
    records.raw("000000");
    const QByteArray styles = u8(2) + solid(0xFF0000) + solid(0x00FF00) + u8(0);
    const QByteArray tags = tag(9, u8(0) + u8(0) + u8(0)) + shown(shape(2, styles, records));
    for (const double scale : {1.0, 1.37, 3.0}) {
      const QImage image = picture(tags, scale);
      for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
          const QRgb pixel = image.pixel(x, y);
          QVERIFY(std::abs(qRed(pixel) + qGreen(pixel) - 255) <= 2);
        }
      }
      COMPARE_COLOR(image, 1, image.height() / 2, 0xFFFF0000);
      COMPARE_COLOR(image, image.width() - 2, image.height() / 2, 0xFF00FF00);
    }
  }

  void twoShapesThatMeetWithinAPixelShowNoSeam() {
    const QByteArray tags =
        tag(9, u8(0) + u8(0) + u8(0)) + rectangleShape(1, 0, 0, 110, 400, 0xFFFFFF) +
        rectangleShape(2, 110, 0, 400, 400, 0xFFFFFF) + place(1, 1) + place(2, 2) + showFrame();
    const QImage image = picture(tags, 1.3);
    for (int x = 0; x < image.width(); ++x) {
      QCOMPARE(image.pixel(x, 10), kWhite);
    }
  }

  void laterFillsOfOneShapeCoverEarlierOnes() {
    // Two squares that overlap, drawn one after the other without new styles, as some tools write.
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 1, 0, 0, 0);
    rectangleEdges(records, 0, 0, 200, 200);
    begin(records, 0, 2, 0, 100, 100);
    rectangleEdges(records, 100, 100, 300, 300);
    records.raw("000000");
    const QImage image =
        picture(shown(shape(2, u8(2) + solid(0xFF0000) + solid(0x0000FF) + u8(0), records)));
    QCOMPARE(image.pixel(2, 2), 0xFFFF0000);
    QCOMPARE(image.pixel(7, 7), 0xFF0000FF);
  }

  void aContourWithinAnotherOneIsAHole() {
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 1, 0, 0, 0);
    rectangleEdges(records, 0, 0, 400, 400);
    begin(records, 0, 1, 0, 100, 100);
    rectangleEdges(records, 100, 100, 300, 300);
    records.raw("000000");
    const QImage image = picture(shown(shape(2, u8(1) + solid(0xFF0000) + u8(0), records)));
    QCOMPARE(image.pixel(2, 2), 0xFFFF0000);
    QCOMPARE(image.pixel(10, 10), kWhite);
  }

  void aCurveBulgesByHalfTheWayToItsControlPoint() {
    // From (0,200) over the control point (200,-200) to (400,200): at x 200 the curve is at y 0.
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 1, 0, 0, 200);
    records.raw("1 0 1111").number(17, 200).number(17, -400).number(17, 200).number(17, 400);
    edge(records, -400, 0);
    records.raw("000000");
    const QImage image = picture(shown(shape(2, u8(1) + solid(0x0000FF) + u8(0), records)));
    COMPARE_COLOR(image, 10, 1, 0xFF0000FF);
    QCOMPARE(image.pixel(1, 1), kWhite);
    // At x 100 (5 pixels) the curve is at y 200 - 2*0.25*0.75*400 = 50, 2.5 pixels.
    QCOMPARE(image.pixel(4, 1), kWhite);
    COMPARE_COLOR(image, 5, 3, 0xFF0000FF);
  }

  void aLinearGradientGoesFromTheLeftToTheRightOfItsSquare() {
    // Black at ratio 0 to white at ratio 255.
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 1, 0, 0, 0);
    rectangleEdges(records, 0, 0, 400, 400).raw("000000");
    const QByteArray fill = u8(0x10) + gradientMatrix() + u8(2) + u8(0) + solid(0).mid(1) +
                            u8(255) + solid(0xFFFFFF).mid(1);
    const QImage image = picture(shown(shape(2, u8(1) + fill + u8(0), records)));
    // The middle of pixel x lies at (x + 0.5) / 20 of the way.
    for (int x = 0; x < 20; ++x) {
      const int gray = qRound((x + 0.5) / 20 * 255);
      QVERIFY(isNear(image.pixel(x, 7), qRgb(gray, gray, gray), 2));
    }
  }

  void aRadialGradientGoesFromTheCentreToTheInscribedCircle() {
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 1, 0, 0, 0);
    rectangleEdges(records, 0, 0, 400, 400).raw("000000");
    const QByteArray fill = u8(0x12) + gradientMatrix() + u8(2) + u8(0) + solid(0).mid(1) +
                            u8(255) + solid(0xFFFFFF).mid(1);
    const QImage image = picture(shown(shape(2, u8(1) + fill + u8(0), records)));
    // 5.5 pixels to the left and half a pixel up from the centre, of 10 pixels.
    const int gray = qRound(std::hypot(5.5, 0.5) / 10 * 255);
    QVERIFY(isNear(image.pixel(4, 9), qRgb(gray, gray, gray), 2));
    QCOMPARE(image.pixel(0, 0), kWhite);  // the end goes on
  }

  void stopsOfAGradientLieAtTheirRatios() {
    // Red up to ratio 128, then to blue.
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 1, 0, 0, 0);
    rectangleEdges(records, 0, 0, 400, 400).raw("000000");
    const QByteArray fill = u8(0x10) + gradientMatrix() + u8(3) + u8(0) + solid(0xFF0000).mid(1) +
                            u8(128) + solid(0xFF0000).mid(1) + u8(255) + solid(0x0000FF).mid(1);
    const QImage image = picture(shown(shape(2, u8(1) + fill + u8(0), records)));
    QVERIFY(isNear(image.pixel(3, 7), qRgb(255, 0, 0), 2));
    QVERIFY(isNear(image.pixel(9, 7), qRgb(255, 0, 0), 2));
    const double t = (14.5 / 20 * 255 - 128) / 127;
    QVERIFY(isNear(image.pixel(14, 7), qRgb(qRound(255 * (1 - t)), 0, qRound(255 * t)), 3));
  }

  void aLineIsAsWideAsItsStyleSaysAndItsEndsAreRound() {
    // Four pixels wide, along y 10, from x 5 to x 15.
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 0, 1, 100, 200);
    edge(records, 200, 0).raw("000000");
    const QByteArray styles = u8(0) + u8(1) + u16(80) + u8(255) + u8(0) + u8(0);
    const QImage image = picture(shown(shape(2, styles, records)));
    QCOMPARE(image.pixel(10, 7), kWhite);
    QCOMPARE(image.pixel(10, 8), 0xFFFF0000);
    QCOMPARE(image.pixel(10, 11), 0xFFFF0000);
    QCOMPARE(image.pixel(10, 12), kWhite);
    COMPARE_COLOR(image, 3, 10,
                  image.pixel(16, 9));  // the caps reach two pixels out, symmetrically
    QVERIFY(image.pixel(3, 10) != kWhite);
    QCOMPARE(image.pixel(2, 10), kWhite);
    QVERIFY(image.pixel(3, 8) != 0xFFFF0000);  // round, not square
  }

  void aLineScalesWithTheMatrix() {
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 0, 1, 100, 100);
    edge(records, 100, 0).raw("000000");
    const QByteArray styles = u8(0) + u8(1) + u16(40) + u8(255) + u8(0) + u8(0);
    // Scaled to the double: 2.0 as 16.16 in 19 bits.
    const QByteArray twice =
        Bits().raw("1 10011").number(19, 131072).number(19, 131072).raw("0 00000").bytes();
    const QImage image =
        picture(shape(2, styles, records) + tag(26, u8(6) + u16(1) + u16(1) + twice) + showFrame());
    QCOMPARE(image.pixel(15, 7), kWhite);
    QCOMPARE(image.pixel(15, 8), 0xFFFF0000);
    QCOMPARE(image.pixel(15, 11), 0xFFFF0000);
    QCOMPARE(image.pixel(15, 12), kWhite);
  }

  void aHairlineIsNeverThinnerThanAPixel() {
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 0, 1, 0, 210);  // along the middle of pixel row 10
    edge(records, 400, 0).raw("000000");
    const QByteArray styles = u8(0) + u8(1) + u16(0) + u8(0) + u8(0) + u8(0);
    const QImage image = picture(shown(shape(2, styles, records)));
    COMPARE_COLOR(image, 10, 10, 0xFF000000);
    // Drawn at a quarter of its size it still is one pixel of full darkness, spread over two rows.
    const QImage tiny = picture(shown(shape(2, styles, records)), 0.25);
    QVERIFY(qRed(tiny.pixel(2, 2)) + qRed(tiny.pixel(2, 1)) + qRed(tiny.pixel(2, 3)) <=
            2 * 255 + 4);
  }

  void transparentColorsLetTheGroundThrough() {
    // DefineShape3: half transparent blue.
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 1, 0, 0, 0);
    rectangleEdges(records, 0, 0, 200, 200).raw("000000");
    const QImage image =
        picture(shown(shape(32, u8(1) + solid(0x0000FF) + u8(128) + u8(0), records)));
    COMPARE_COLOR(image, 5, 5, 0xFF7F7FFF);
  }

  void newStylesBeginALayerAbove() {
    // DefineShape2: a red square, then new styles and a smaller blue one within it.
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 1, 0, 0, 0);
    rectangleEdges(records, 0, 0, 400, 400).raw("0 10000");
    const QByteArray more = u8(1) + solid(0x0000FF) + u8(0);
    Bits rest;
    rest.raw("0010 0001");
    begin(rest, 0, 1, 0, 100, 100);
    rectangleEdges(rest, 100, 100, 300, 300).raw("000000");
    const QByteArray tags = tag(22, u16(1) + rect(0, 400, 0, 400) + u8(1) + solid(0xFF0000) +
                                        u8(0) + records.bytes() + more + rest.bytes());
    const QImage image = picture(shown(tags));
    QCOMPARE(image.pixel(2, 2), 0xFFFF0000);
    QCOMPARE(image.pixel(10, 10), 0xFF0000FF);
  }

  void moreThanTwoHundredAndFiftyFourStylesCanBeUsed() {
    // The count 255 says that two bytes of count follow. The last of 300 styles is used.
    QByteArray styles = u8(255) + u16(300);
    for (int i = 0; i < 299; ++i) {
      styles += solid(0xFF0000);
    }
    styles += solid(0x00FF00) + u8(0);
    Bits records;
    records.raw("1001 0000");
    records.raw("0 00101 10001").number(17, 0).number(17, 0).number(9, 300);
    rectangleEdges(records, 0, 0, 400, 400).raw("000000");
    QCOMPARE(picture(shown(shape(22, styles, records))).pixel(9, 9), 0xFF00FF00);
  }

  void aHairlineSqueezedOneWayIsStillAPixelWide_data() {
    QTest::addColumn<QString>("scaleY");
    for (const char* scaleY : {"25", "10", "1", "0", "-10"}) {
      QTest::newRow(scaleY) << QString::fromLatin1(scaleY);
    }
  }
  void aHairlineSqueezedOneWayIsStillAPixelWide() {
    // Across the stage, and down from its left end: squeezed, both lie in the row of pixels 10.
    QFETCH(QString, scaleY);
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 0, 1, 100, 10);
    edge(edge(records, 200, 0), 0, 20).raw("000000");
    const QByteArray hairline = shape(2, u8(0) + u8(1) + u16(0) + u8(0) + u8(0) + u8(0), records);
    Player player(movie(file(hairline + sprite(2, place(1, 1) + showFrame()) +
                                 place(1, 2, 0, 10, "line") + showFrame(),
                             6, 20, 20)),
                  [](auto&&...) {});
    player.setProperty(QStringLiteral("line"), Property::ScaleY, scaleY);
    const QImage image = picture(player);
    double ink = 0;  // of the column of pixels 10, which only the line across meets
    for (int y = 0; y < 20; ++y) {
      ink += (255 - qRed(image.pixel(10, y))) / 255.0;
    }
    QVERIFY2(ink > 0.85 && ink < 1.3, qPrintable(QString::number(ink)));
    // What runs along the squeezed direction grows no wider.
    QCOMPARE(image.pixel(17, 10), kWhite);
    QCOMPARE(image.pixel(2, 10), kWhite);
  }

  void aLineInAnUnevenScaleIsAsWideInAllDirections_data() {
    QTest::addColumn<QString>("scaleX");
    QTest::addColumn<QString>("scaleY");
    QTest::newRow("squeezed") << "100"
                              << "25";
    QTest::newRow("mirrored") << "-100"
                              << "25";
    QTest::newRow("stretched") << "200"
                               << "12.5";
    QTest::newRow("the other way") << "25"
                                   << "100";
  }
  void aLineInAnUnevenScaleIsAsWideInAllDirections() {
    // A cross, eight pixels wide; the root of what is left of an area makes it four pixels.
    QFETCH(QString, scaleX);
    QFETCH(QString, scaleY);
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 0, 1, -2000, 0);
    edge(records, 4000, 0);
    begin(records, 0, 0, 1, 0, -2000);
    edge(records, 0, 4000).raw("000000");
    const QByteArray line = shape(2, u8(0) + u8(1) + u16(160) + u8(0) + u8(0) + u8(0), records);
    Player player(movie(file(line + sprite(2, place(1, 1) + showFrame()) +
                                 place(1, 2, 10, 10, "line") + showFrame(),
                             6, 20, 20)),
                  [](auto&&...) {});
    player.setProperty(QStringLiteral("line"), Property::ScaleX, scaleX);
    player.setProperty(QStringLiteral("line"), Property::ScaleY, scaleY);
    const QImage image = picture(player);
    const double area = std::abs(scaleX.toDouble() * scaleY.toDouble()) / 10'000;
    double across = 0;
    double down = 0;
    for (int i = 0; i < 20; ++i) {
      across += (255 - qRed(image.pixel(2, i))) / 255.0;
      down += (255 - qRed(image.pixel(i, 2))) / 255.0;
    }
    const double expected = 8 * std::sqrt(area);
    QVERIFY2(std::abs(across - expected) < 0.15, qPrintable(QString::number(across)));
    QVERIFY2(std::abs(down - expected) < 0.15, qPrintable(QString::number(down)));
  }

  void whatALineInAnUnevenScaleCoversIsPaintedAnew() {
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 0, 1, 0, 0);
    edge(records, 0, 200).raw("000000");
    const QByteArray line = shape(2, u8(0) + u8(1) + u16(160) + u8(0) + u8(0) + u8(0), records);
    Player player(movie(file(line + sprite(2, place(1, 1) + showFrame()) +
                                 place(1, 2, 10, 0, "line") + showFrame(),
                             6, 20, 20)),
                  [](auto&&...) {});
    player.setProperty(QStringLiteral("line"), Property::ScaleX, QStringLiteral("1"));
    player.setProperty(QStringLiteral("line"), Property::ScaleY, QStringLiteral("400"));
    // Eight pixels by the root of 0.04 are 1.6, to both sides of x 10.
    const QRectF place = player.scene().items.front().bounds;
    QVERIFY(place.left() <= 200 - 15.9 && place.right() >= 200 + 15.9);
  }

  void linesWithCapsOfTheirOwnAreReadFromTheFourthShape() {
    // DefineShape4: width 80, no join of its own, colour with alpha.
    Bits records;
    records.raw("0010 0001");
    begin(records, 0, 0, 1, 100, 200);
    edge(records, 200, 0).raw("000000");
    const QByteArray line = u16(80) + u8(0) + u8(0) + u8(255) + u8(0) + u8(0) + u8(255);
    const QImage image =
        picture(shown(tag(83, u16(1) + rect(0, 400, 0, 400) + rect(0, 400, 0, 400) + u8(0) + u8(0) +
                                  u8(1) + line + records.bytes())),
                1, 8);
    QCOMPARE(image.pixel(10, 9), 0xFFFF0000);
  }

  void aPictureIsSharpAtAnyScale() {
    // An edge on a whole pixel stays sharp when the picture is made larger.
    const QByteArray tags = shown(rectangleShape(1, 100, 100, 200, 200, 0));
    const QImage image = picture(tags, 7);
    QCOMPARE(image.pixel(34, 50), kWhite);
    QCOMPARE(image.pixel(35, 50), 0xFF000000);
    QCOMPARE(image.pixel(69, 50), 0xFF000000);
    QCOMPARE(image.pixel(70, 50), kWhite);
  }
};

const prova::Iscrizione<RendererTest> kIscritta;

}  // namespace renderer_test

#include "renderer_test.moc"
