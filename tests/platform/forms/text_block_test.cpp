#include "platform/forms/text_block.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <cmath>

#include "platform/forms/fonts.h"
#include "support/ink.h"
#include "support/iscrizione.h"
#include "support/stand_still.h"

namespace text_block_test {

using platform::accessKeyOf;
using platform::Align;
using platform::contrast;
using platform::Face;
using platform::fontOf;
using platform::readableOn;
using platform::TextBlock;
using platform::withoutMnemonic;

namespace {

constexpr int kAround = 60;  // pixels of paper round a room, to see what leaves it
const QColor kCyan(0, 255, 255);

// The part of the paper that a text's ink, outline included, took.
struct Painted {
  QRect ink;  // in the room's own coordinates; empty where nothing was painted
  QImage paper;
};

Painted paint(TextBlock& block, QSize room, const QColor& ink, const QColor& ground) {
  QImage paper(room + QSize(2 * kAround, 2 * kAround), QImage::Format_RGB32);
  paper.fill(ground);
  {
    QPainter painter(&paper);
    block.paint(painter, QRect(QPoint(kAround, kAround), room), ink, ground);
  }
  const QRect taken =
      prova::inkIn(paper, [plain = ground.rgb()](QRgb pixel) { return pixel != plain; });
  return {taken.translated(-kAround, -kAround), paper};
}

QFont tahoma(int pixels, bool bold = false) {
  return fontOf({Face::Tahoma, 9, bold}, pixels);
}

}  // namespace

// Captions in their rectangles.
class TextBlockTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theContrastOfTwoColorsIsThatOfTheirLuminances_data() {
    QTest::addColumn<QColor>("a");
    QTest::addColumn<QColor>("b");
    QTest::addColumn<double>("ratio");
    QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
    QTest::newRow("a colour on itself") << kCyan << kCyan << 1.0;
    QTest::newRow("the faintest grey that passes")
        << QColor("#767676") << QColor(Qt::white) << 4.54;
    QTest::newRow("the first that does not") << QColor("#777777") << QColor(Qt::white) << 4.48;
    QTest::newRow("red on white") << QColor(255, 0, 0) << QColor(Qt::white) << 4.0;
    QTest::newRow("blue on white") << QColor(0, 0, 255) << QColor(Qt::white) << 8.59;
    QTest::newRow("yellow on white") << QColor(255, 255, 0) << QColor(Qt::white) << 1.07;
    QTest::newRow("cyan on white") << kCyan << QColor(Qt::white) << 1.25;
  }
  void theContrastOfTwoColorsIsThatOfTheirLuminances() {
    QFETCH(QColor, a);
    QFETCH(QColor, b);
    QFETCH(double, ratio);
    QVERIFY(std::abs(contrast(a, b) - ratio) < 0.01);
    QCOMPARE(contrast(a, b), contrast(b, a));
  }

  void whatIsReadableOnAGroundIsBlackOrWhite() {
    QCOMPARE(readableOn(Qt::white), QColor(Qt::black));
    QCOMPARE(readableOn(Qt::black), QColor(Qt::white));
    QCOMPARE(readableOn(QColor(0, 0, 160)), QColor(Qt::white));
    QCOMPARE(readableOn(QColor(255, 0, 0)), QColor(Qt::black));
    for (int red = 0; red < 256; red += 15) {
      for (int blue = 0; blue < 256; blue += 15) {
        const QColor ground(red, 120, blue);
        QVERIFY(contrast(readableOn(ground), ground) >= 4.5);
      }
    }
  }

  void theMarkOfAnAccessKeyIsNotShownAndTwoMarksAreOne() {
    QCOMPARE(withoutMnemonic(QStringLiteral("a&vanti")), QStringLiteral("avanti"));
    QCOMPARE(withoutMnemonic(QStringLiteral("Sì && no")), QStringLiteral("Sì & no"));
    QCOMPARE(withoutMnemonic(QStringLiteral("fine&")), QStringLiteral("fine&"));
    QCOMPARE(withoutMnemonic(QString()), QString());
  }

  void theAccessKeyIsTheFirstMarkedLetter() {
    QCOMPARE(accessKeyOf(QStringLiteral("a&vanti")), QChar(u'V'));
    QCOMPARE(accessKeyOf(QStringLiteral("&aiuto")), QChar(u'A'));
    QCOMPARE(accessKeyOf(QStringLiteral("&uno &due")), QChar(u'U'));
    QCOMPARE(accessKeyOf(QStringLiteral("Sì && &no")), QChar(u'N'));
    QCOMPARE(accessKeyOf(QStringLiteral("Sì && no")), QChar());
    QCOMPARE(accessKeyOf(QStringLiteral("niente")), QChar());
    QCOMPARE(accessKeyOf(QStringLiteral("fine&")), QChar());
  }

  void aTextThatFitsKeepsTheSizeOfItsFont() {
    TextBlock block;
    block.set(QStringLiteral("Somme"), tahoma(20), {400, 60}, Align::Left, false);
    QCOMPARE(block.pixelSize(), 20);
    block.set(QStringLiteral("Somme"), tahoma(20), {4000, 600}, Align::Left, false);
    QCOMPARE(block.pixelSize(), 20);
  }

  void aTextWrapsBeforeItTakesASmallerSize() {
    const QString text = QStringLiteral("Trova il numero che corrisponde alla barra rossa");
    TextBlock block;
    block.set(text, tahoma(20), {220, 200}, Align::Left, false);
    QCOMPARE(block.pixelSize(), 20);
    QVERIFY(block.size().height() > 40);
    QVERIFY(block.size().width() <= 220);
    // Where lines have no room, either, it is the size that gives.
    block.set(text, tahoma(20), {220, 30}, Align::Left, false);
    QVERIFY(block.pixelSize() < 20);
    QVERIFY(block.size().height() <= 30);
  }

  void noLineBeginsWithANumber() {
    TextBlock together;
    together.set(QStringLiteral("Summanden bis"), tahoma(20), {400, 60}, Align::Left, false);
    TextBlock alone;
    alone.set(QStringLiteral("Summanden"), tahoma(20), {400, 60}, Align::Left, false);
    // Room for the first two words on a line, not for the number.
    const QSize room(together.size().width() + 5, 60);
    TextBlock block;
    block.set(QStringLiteral("Summanden bis 10"), tahoma(20), room, Align::Left, false);
    QCOMPARE(block.pixelSize(), 20);
    QVERIFY(block.size().height() > together.size().height());
    QVERIFY(std::abs(block.size().width() - alone.size().width()) <= 2);
  }

  void roomForAccentsOverCapitalsIsLeftOnlyWhereThereAreSome() {
    TextBlock small;
    TextBlock tall;
    small.set(QStringLiteral("però\nsì"), tahoma(20), {400, 200}, Align::Left, false);
    tall.set(QStringLiteral("PERÒ\nSÌ"), tahoma(20), {400, 200}, Align::Left, false);
    QVERIFY(small.size().height() < tall.size().height() - 4);
  }

  void aTextOf32000CharactersIsSetAndPaintedInNoTime_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("room");
    QTest::addColumn<QColor>("ink");
    const QString words = QStringLiteral("Trova il numero giusto ").repeated(1400).left(32000);
    const QString one = QString(32000, u'm');
    const QString lines = QStringLiteral("uno\n").repeated(8000);
    for (const QSize room : {QSize(60, 20), QSize(300, 60), QSize(1000, 600)}) {
      QTest::addRow("words, %d", room.width()) << words << room << QColor(Qt::black);
      QTest::addRow("faint words, %d", room.width()) << words << room << kCyan;
      QTest::addRow("one word, %d", room.width()) << one << room << QColor(Qt::black);
      QTest::addRow("lines, %d", room.width()) << lines << room << QColor(Qt::black);
    }
  }
  void aTextOf32000CharactersIsSetAndPaintedInNoTime() {
    QFETCH(QString, text);
    QFETCH(QSize, room);
    QFETCH(QColor, ink);
    QImage paper(room, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    qint64 taken = 1000;
    // Another program may have driven ours out of the processor's memory.
    for (int i = 0; i < 3 && taken > 200; ++i) {
      TextBlock block;
      prova::StandStill still;
      block.set(text, tahoma(44), room, Align::Left, true);
      block.paint(painter, QRect(QPoint(), room), ink, Qt::white);
      still.beat();
      taken = still.longest();
    }
    QVERIFY2(taken <= 200, qPrintable(QStringLiteral("%1 ms").arg(taken)));
    painter.end();
    QImage white(paper.size(), paper.format());
    white.fill(Qt::white);
    QVERIFY(paper != white);
  }

  void aLongTextTakesTheSizeThatTryingThemAllWouldGive() {
    const QString words = QStringLiteral("Trova il numero giusto ").repeated(60);
    QVERIFY(words.size() > 1000);
    for (const QSize room : {QSize(200, 300), QSize(500, 300), QSize(900, 500), QSize(1900, 90)}) {
      TextBlock block;
      block.set(words, tahoma(44), room, Align::Left, false);
      QVERIFY(block.size().height() <= room.height());
      // In the next larger size it does not go there.
      TextBlock larger;
      larger.set(words, tahoma(block.pixelSize() + 4), QSize(room.width(), 4000), Align::Left,
                 false);
      QVERIFY(block.pixelSize() == 44 || larger.size().height() > room.height());
    }
  }

  void aWordLongerThanItsRoomTakesASmallerSize() {
    TextBlock block;
    block.set(QStringLiteral("Arcobaleno"), tahoma(40), {100, 200}, Align::Left, false);
    QVERIFY(block.pixelSize() < 40);
    QVERIFY(block.size().width() <= 100);
  }

  void aTextTakesNoSmallerSizeThanItMust() {
    TextBlock block;
    block.set(QStringLiteral("Arcobaleno"), tahoma(40), {150, 200}, Align::Left, false);
    const int given = block.pixelSize();
    TextBlock larger;
    larger.set(QStringLiteral("Arcobaleno"), tahoma(int(given * 1.15) + 1), {10000, 200},
               Align::Left, false);
    QVERIFY(larger.size().width() > 150);
  }

  void noInkLeavesTheRoom_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("least");  // the lowest room that it is set into
    QTest::newRow("a number") << QStringLiteral(" 10") << 0;
    QTest::newRow("one letter") << QStringLiteral("?") << 0;
    QTest::newRow("descenders") << QStringLiteral("gjpqy") << 0;
    QTest::newRow("accents") << QStringLiteral("ÀÈÉÙ però") << 0;
    QTest::newRow("brackets") << QStringLiteral("(Ç) 1!") << 0;
    QTest::newRow("a sentence") << QStringLiteral(
                                       "Trova il numero che corrisponde alla barra rossa")
                                << 90;
    QTest::newRow("lines") << QStringLiteral("Software di\nchi insegna e chi impara\n") << 90;
    QTest::newRow("a button") << QStringLiteral("a&vanti") << 0;
    QTest::newRow("slanting ends") << QStringLiteral("WAfj") << 0;
  }
  void noInkLeavesTheRoom() {
    QFETCH(QString, text);
    QFETCH(int, least);
    for (const bool bold : {false, true}) {
      for (const Face face : {Face::Tahoma, Face::Arial}) {
        for (const int pixels : {11, 16, 27, 48}) {
          for (const QSize room : {QSize(40, 24), QSize(90, 20), QSize(120, 90), QSize(300, 35)}) {
            if (room.height() < least) continue;
            for (const Align align : {Align::Left, Align::Centre, Align::Right}) {
              for (const QColor& ink : {QColor(Qt::black), kCyan}) {
                TextBlock block;
                block.set(text, fontOf({face, 9, bold}, pixels), room, align, true);
                const QRect taken = paint(block, room, ink, Qt::white).ink;
                QVERIFY(!taken.isEmpty());
                // Smoothing may shade the pixel next to an edge.
                const QRect allowed = QRect(QPoint(), room).adjusted(-1, -1, 1, 1);
                QVERIFY2(allowed.contains(taken),
                         qPrintable(QStringLiteral("%1 px in %2x%3: ink %4,%5 %6x%7, size %8")
                                        .arg(pixels)
                                        .arg(room.width())
                                        .arg(room.height())
                                        .arg(taken.x())
                                        .arg(taken.y())
                                        .arg(taken.width())
                                        .arg(taken.height())
                                        .arg(block.pixelSize())));
              }
            }
          }
        }
      }
    }
  }

  void aTextStandsInTheMiddleFromTopToBottomAndWhereItsAlignmentSays() {
    const QSize room(300, 100);
    TextBlock block;
    block.set(QStringLiteral("Hx"), tahoma(30), room, Align::Left, false);
    const QRect left = paint(block, room, Qt::black, Qt::white).ink;
    block.set(QStringLiteral("Hx"), tahoma(30), room, Align::Centre, false);
    const QRect centre = paint(block, room, Qt::black, Qt::white).ink;
    block.set(QStringLiteral("Hx"), tahoma(30), room, Align::Right, false);
    const QRect right = paint(block, room, Qt::black, Qt::white).ink;
    QVERIFY(left.left() < 6);
    QVERIFY(std::abs(centre.center().x() - 150) < 5);
    QVERIFY(right.right() > 293);
    for (const QRect& ink : {left, centre, right}) QVERIFY(std::abs(ink.center().y() - 50) < 8);
  }

  void aFaintPairGetsAnOutlineAndAStrongOneDoesNot() {
    const QSize room(200, 60);
    TextBlock block;
    block.set(QStringLiteral("7"), tahoma(40, true), room, Align::Centre, false);
    const auto darkest = [](const QImage& paper) {
      double best = 1;
      for (int y = 0; y < paper.height(); ++y) {
        for (int x = 0; x < paper.width(); ++x) {
          best = std::max(best, contrast(paper.pixelColor(x, y), Qt::white));
        }
      }
      return best;
    };
    const Painted faint = paint(block, room, kCyan, Qt::white);
    QVERIFY(darkest(faint.paper) >= 4.5);
    // The letter itself has the colour that it was given.
    int cyan = 0;
    for (int y = 0; y < faint.paper.height(); ++y) {
      for (int x = 0; x < faint.paper.width(); ++x) {
        if (faint.paper.pixelColor(x, y) == kCyan) ++cyan;
      }
    }
    QVERIFY(cyan > 30);
    const QColor strong(0, 0, 160);
    const Painted plain = paint(block, room, strong, Qt::white);
    QVERIFY(darkest(plain.paper) <= contrast(strong, Qt::white) + 0.01);
  }

  void theAccessKeyIsUnderlinedAndElsewhereTheMarkIsALetter() {
    const QSize room(200, 60);
    TextBlock marked;
    marked.set(QStringLiteral("a&vanti"), tahoma(24), room, Align::Left, true);
    TextBlock plain;
    plain.set(QStringLiteral("avanti"), tahoma(24), room, Align::Left, true);
    QCOMPARE(marked.size(), plain.size());
    const Painted line = paint(marked, room, Qt::black, Qt::white);
    const Painted none = paint(plain, room, Qt::black, Qt::white);
    QVERIFY(line.paper != none.paper);
    QVERIFY(line.ink.bottom() > none.ink.bottom());
    TextBlock letter;
    letter.set(QStringLiteral("a&vanti"), tahoma(24), room, Align::Left, false);
    QVERIFY(letter.size().width() > plain.size().width());
  }

  void aTextOfBlanksPaintsNothing() {
    TextBlock block;
    block.set(QStringLiteral("  "), tahoma(20), {100, 40}, Align::Left, false);
    QVERIFY(paint(block, {100, 40}, Qt::black, Qt::white).ink.isEmpty());
    block.set(QStringLiteral("Somme"), tahoma(20), {0, 40}, Align::Left, false);
    QVERIFY(paint(block, {0, 40}, Qt::black, Qt::white).ink.isEmpty());
  }
};

const prova::Iscrizione<TextBlockTest, QApplication> kIscritta;

}  // namespace text_block_test

#include "text_block_test.moc"
