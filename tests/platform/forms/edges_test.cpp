#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QTest>

#include "platform/forms/focus_ring.h"
#include "stage.h"
#include "support/iscrizione.h"

namespace edges_test {

using trial::kOne;
using trial::Stage;
using trial::TrialForm;

namespace {

const QRgb kEdge = qRgb(70, 70, 70);

// How many pixels of a colour follow one another from a place on, in a direction.
int run(const QImage& image, QPoint from, QPoint step, QRgb color) {
  int length = 0;
  while (image.rect().contains(from) && image.pixel(from) == color) {
    ++length;
    from += step;
  }
  return length;
}

QImage pictureOf(const platform::Control& control) {
  return control.widget()->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

int leftEdge(const QImage& image, QRgb color) {
  return run(image, {0, image.height() / 2}, {1, 0}, color);
}

}  // namespace

// The edges of what stands on a form.
class EdgesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void bordersCornersAndBevelsGrowWithALargeWindow_data() {
    QTest::addColumn<QSize>("window");
    QTest::addColumn<int>("times");
    QTest::newRow("small") << QSize(800, 600) << 1;
    QTest::newRow("usual") << QSize(1366, 768) << 1;
    QTest::newRow("twice as high") << QSize(2732, 1536) << 2;
    QTest::newRow("three times as high") << QSize(4096, 2304) << 3;
    QTest::newRow("wide and low") << QSize(3840, 600) << 1;
  }
  void bordersCornersAndBevelsGrowWithALargeWindow() {
    QFETCH(QSize, window);
    QFETCH(int, times);
    Stage stage(window);
    TrialForm& form = stage.show(kOne);
    form.Third.setFocus();
    const QImage button = pictureOf(form.First);
    QCOMPARE(leftEdge(button, kEdge), times);
    // The corner is cut off, the upper edge begins beside it.
    int corner = 0;
    while (button.pixel(corner, 0) != kEdge) ++corner;
    QVERIFY2(corner >= 5 * times && corner <= 7 * times, qPrintable(QString::number(corner)));
    const QPoint shaded(button.width() / 2, button.height() - 1 - 2 * times);
    QCOMPARE(run(button, shaded, {0, -1}, button.pixel(shaded)), 2 * times);
    QCOMPARE(leftEdge(pictureOf(form.Square[0]), qRgb(0, 0, 0)), times);
  }

  void aWindowOverAnotherHasEdgesAsWideAsItsOwn() {
    QWidget large;
    large.resize(3000, 1536);
    QDialog over(&large);
    over.resize(300, 200);
    QWidget inside(&over);
    QCOMPARE(platform::markPixels(inside, 1), 2);
    QCOMPARE(platform::markPixels(large, 1), 2);
    QWidget alone;
    alone.resize(300, 200);
    QCOMPARE(platform::markPixels(alone, 1), 1);
  }
};

const prova::Iscrizione<EdgesTest, QApplication> kIscritta;

}  // namespace edges_test

#include "edges_test.moc"
