#include "painted.h"

#include "support/iscrizione.h"

namespace painted_scene_test {

using namespace painted;
using platform::flash::Property;

// How what is placed is painted: colours, depths, masks, matrices, texts.
class PaintedSceneTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void colorTransformsMultiplyThenAddAndClampChildBeforeParent() {
    // Inner: red * 0.5 + 100; outer: green + 300 (clamped), blue * 0.
    const QByteArray inner = Bits()
                                 .raw("1 1 1011")
                                 .number(11, 128)
                                 .number(11, 256)
                                 .number(11, 256)
                                 .number(11, 256)
                                 .number(11, 100)
                                 .number(11, 0)
                                 .number(11, 0)
                                 .number(11, 0)
                                 .bytes();
    const QByteArray outer = Bits()
                                 .raw("1 1 1011")
                                 .number(11, 128)
                                 .number(11, 256)
                                 .number(11, 0)
                                 .number(11, 256)
                                 .number(11, 0)
                                 .number(11, 300)
                                 .number(11, 0)
                                 .number(11, 0)
                                 .bytes();
    const auto placed = [](unsigned id, const QByteArray& color) {
      return tag(26, u8(0x0E) + u16(1) + u16(id) + shift(0, 0) + color);
    };
    const QByteArray tags = square(1, 20, 0xC86432) + sprite(2, placed(1, inner) + showFrame()) +
                            placed(2, outer) + showFrame();
    // 200 * 0.5 + 100 = 200, then * 0.5 = 100; 100 + 300 clamps; 50 * 0.
    COMPARE_COLOR(picture(tags), 5, 5, qRgb(100, 255, 0));
  }

  void theFirstPlaceObjectKnowsMatrixAndColorsWithoutAlpha() {
    const QByteArray halfRed =
        Bits().raw("0 1 1010").number(10, 128).number(10, 256).number(10, 256).bytes();
    const QImage image = picture(square(1, 5, 0xFFFFFF) +
                                 tag(4, u16(1) + u16(1) + shift(100, 100) + halfRed) + showFrame());
    COMPARE_COLOR(image, 7, 7, qRgb(128, 255, 255));
    QCOMPARE(image.pixel(4, 4), kWhite);
    const QImage plain =
        picture(square(1, 5, 0x00FF00) + tag(4, u16(1) + u16(1) + shift(100, 100)) + showFrame());
    QCOMPARE(plain.pixel(7, 7), 0xFF00FF00);
  }

  void higherDepthsCoverLowerOnes() {
    const QImage image = picture(square(1, 10, 0xFF0000) + square(2, 10, 0x0000FF) + place(7, 1) +
                                 place(3, 2, 5, 5) + showFrame());
    QCOMPARE(image.pixel(7, 7), 0xFFFF0000);
    QCOMPARE(image.pixel(12, 12), 0xFF0000FF);
  }

  void aMaskShowsTheDepthsAboveItUpToItsClipDepthOnlyWhereItLies() {
    // The mask: depth 2, clip depth 4, the left half.
    const QByteArray mask = tag(26, u8(0x46) + u16(2) + u16(1) + shift(0, 0) + u16(4));
    const QImage image = picture(rectangleShape(1, 0, 0, 200, 400, 0x123456) +
                                 rectangleShape(2, 0, 0, 400, 100, 0xFF0000) +
                                 rectangleShape(3, 0, 200, 400, 400, 0x00FF00) + mask +
                                 place(4, 2) + place(5, 3) + showFrame());
    QCOMPARE(image.pixel(5, 2), 0xFFFF0000);
    QCOMPARE(image.pixel(15, 2), kWhite);       // masked out
    QCOMPARE(image.pixel(15, 15), 0xFF00FF00);  // above the clip depth
    QCOMPARE(image.pixel(5, 7), kWhite);        // the mask itself is not seen
  }

  void aMaskWithinAMaskShowsOnlyWhatBothLetThrough() {
    const auto mask = [](unsigned depth, unsigned id, unsigned upTo) {
      return tag(26, u8(0x46) + u16(depth) + u16(id) + shift(0, 0) + u16(upTo));
    };
    const QImage image = picture(rectangleShape(1, 0, 0, 200, 400, 0) +
                                 rectangleShape(2, 0, 0, 400, 200, 0) + square(3, 20, 0xFF0000) +
                                 mask(1, 1, 9) + mask(2, 2, 9) + place(3, 3) + showFrame());
    QCOMPARE(image.pixel(5, 5), 0xFFFF0000);
    QCOMPARE(image.pixel(15, 5), kWhite);
    QCOMPARE(image.pixel(5, 15), kWhite);
  }

  void hiddenAndTransparentClipsAreNotDrawn() {
    Player player(movie(file(square(1, 20, 0xFF0000) + sprite(2, place(1, 1) + showFrame()) +
                                 place(1, 2, 0, 0, "c") + showFrame(),
                             6, 20, 20)),
                  [](auto&&...) {});
    QCOMPARE(picture(player).pixel(5, 5), 0xFFFF0000);
    player.setProperty(QStringLiteral("c"), Property::Alpha, QStringLiteral("50"));
    COMPARE_COLOR(picture(player), 5, 5, 0xFFFF7F7F);
    player.setProperty(QStringLiteral("c"), Property::Alpha, QStringLiteral("0"));
    QCOMPARE(picture(player).pixel(5, 5), kWhite);
    player.setProperty(QStringLiteral("c"), Property::Alpha, QStringLiteral("100"));
    player.setProperty(QStringLiteral("c"), Property::Visible, QStringLiteral("0"));
    QCOMPARE(picture(player).pixel(5, 5), kWhite);
    player.setProperty(QStringLiteral("c"), Property::Visible, QStringLiteral("1"));
    QCOMPARE(picture(player).pixel(5, 5), 0xFFFF0000);
  }

  void matricesRotateAndSkew() {
    // A quarter turn clockwise: scales 0, skews 1 and -1, shifted right by 20 pixels.
    const QByteArray turned = Bits()
                                  .raw("1 00010 00 00  1 10010")
                                  .number(18, 65536)
                                  .number(18, -65536)
                                  .raw("01010")
                                  .number(10, 400)
                                  .number(10, 0)
                                  .bytes();
    const QImage image = picture(rectangleShape(1, 0, 0, 200, 100, 0xFF0000) +
                                 tag(26, u8(6) + u16(1) + u16(1) + turned) + showFrame());
    QCOMPARE(image.pixel(17, 5), 0xFFFF0000);  // 5 pixels wide, 10 high, at the right
    QCOMPARE(image.pixel(14, 5), kWhite);
    QCOMPARE(image.pixel(17, 11), kWhite);
  }

  void textIsDrawnWithTheOutlinesOfItsFont_data() {
    QTest::addColumn<int>("fontTag");
    QTest::addColumn<int>("textTag");
    QTest::newRow("DefineFont") << 10 << 11;
    QTest::newRow("DefineFont2") << 48 << 11;
    QTest::newRow("DefineFont3") << 75 << 11;
    QTest::newRow("DefineText2") << 48 << 33;
  }

  void textIsDrawnWithTheOutlinesOfItsFont() {
    QFETCH(int, fontTag);
    QFETCH(int, textTag);
    // Two glyphs: none, and the em square (from the base line upwards).
    const int em = fontTag == 75 ? 20480 : 1024;
    Bits filled;
    filled.raw("0001 0000  0 00101 10001").number(17, 0).number(17, -em).raw("1");
    rectangleEdges(filled, 0, -em, em, 0).raw("000000");
    const QByteArray blank = Bits().raw("0001 0000 000000").bytes();
    const QByteArray glyphs = blank + filled.bytes();
    const QByteArray font =
        fontTag == 10 ? tag(10, u16(1) + u16(4) + u16(4 + unsigned(blank.size())) + glyphs)
                      : tag(unsigned(fontTag), u16(1) + u8(0) + u8(0) + u8(1) + "F" + u16(2) +
                                                   u16(6) + u16(6 + unsigned(blank.size())) +
                                                   u16(6 + unsigned(glyphs.size())) + glyphs +
                                                   u8(65) + u8(66));
    // Glyphs 1, 0, 1 in green, 100 twips high, 100 twips apart, from (100, 200).
    // The second kind of text has colours with alpha.
    const QByteArray color = u8(0) + u8(255) + u8(0) + (textTag == 33 ? u8(255) : QByteArray());
    const QByteArray written = tag(
        unsigned(textTag), u16(2) + rect(0, 400, 0, 400) + shift(0, 0) + u8(1) + u8(8) + u8(0x8F) +
                               u16(1) + color + u16(100) + u16(200) + u16(100) + u8(3) +
                               Bits().raw("1 01100100 0 01100100 1 01100100").bytes() + u8(0));
    const QImage image = picture(font + written + place(1, 2) + showFrame());
    QCOMPARE(image.pixel(7, 7), 0xFF00FF00);
    QCOMPARE(image.pixel(12, 7), kWhite);
    QCOMPARE(image.pixel(17, 7), 0xFF00FF00);
    QCOMPARE(image.pixel(7, 4), kWhite);
    QCOMPARE(image.pixel(7, 11), kWhite);
  }
};

const prova::Iscrizione<PaintedSceneTest> kIscritta;

}  // namespace painted_scene_test

#include "painted_scene_test.moc"
