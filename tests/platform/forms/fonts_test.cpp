#include "platform/forms/fonts.h"

#include <QApplication>
#include <QtTest>

#include "support/iscrizione.h"

namespace fonts_test {

using platform::Face;
using platform::largestThatFits;

class FontsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theWantedSizeIsTakenWhereItFits() {
    QCOMPARE(largestThatFits(40, 9, [](int pixels) { return pixels <= 40; }), 40);
  }

  void elseTheLargestThatFits() {
    for (int limit = 9; limit < 40; ++limit) {
      QCOMPARE(largestThatFits(40, 9, [limit](int pixels) { return pixels <= limit; }), limit);
    }
  }

  void whereNothingFitsItIsTheSmallest() {
    QCOMPARE(largestThatFits(40, 9, [](int) { return false; }), 9);
  }

  void aSizeBelowTheSmallestStays() {
    QCOMPARE(largestThatFits(5, 9, [](int) { return false; }), 5);
  }

  // Also of fonts that differ in one thing only, however many have been asked for.
  void theInkOfEachFontIsItsOwn() {
    for (int again = 0; again < 2; ++again) {
      for (int pixels = 10; pixels < 50; ++pixels) {
        for (const Face face : {Face::Tahoma, Face::Arial}) {
          const QFont font = platform::fontOf({.face = face}, pixels);
          const QRectF ink = QFontMetricsF(font).tightBoundingRect(QStringLiteral("ÀÈÇ(gjpqy"));
          QCOMPARE(platform::inkOf(font).above, -ink.top());
          QCOMPARE(platform::inkOf(font).below, ink.bottom());
        }
      }
    }
  }

  void lettersOfThousandsOfPixelsAreMeasuredInAFewSizesOnly() {
    int asked = 0;
    const int found = largestThatFits(30000, 9, [&asked](int pixels) {
      ++asked;
      return pixels <= 57;
    });
    QCOMPARE(found, 57);
    QVERIFY(asked <= 20);
  }
};

const prova::Iscrizione<FontsTest, QApplication> kIscritta;

}  // namespace fonts_test

#include "fonts_test.moc"
