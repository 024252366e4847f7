#include "platform/forms/focus_ring.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <QWidget>

#include "support/iscrizione.h"

namespace focus_ring_test {

using platform::kFocusRingWidth;
using platform::markScale;
using platform::paintFocusRing;

// The mark of the focus.
class FocusRingTest : public QObject {
  Q_OBJECT

  // How many pixels of the ring lie on a line from the left edge of a control inwards.
  static int painted(const QWidget& control) {
    QImage paper(control.size(), QImage::Format_RGB32);
    paper.fill(Qt::red);
    {
      QPainter painter(&paper);
      paintFocusRing(painter, control, 0);
    }
    int x = 0;
    while (x < paper.width() && paper.pixelColor(x, paper.height() / 2) != QColor(Qt::red)) ++x;
    return x;
  }

 private Q_SLOTS:
  void theRingGrowsWithALargeWindow_data() {
    QTest::addColumn<QSize>("window");
    QTest::addColumn<int>("wide");
    QTest::newRow("small") << QSize(800, 560) << 5;
    QTest::newRow("usual") << QSize(1366, 768) << 5;
    QTest::newRow("twice as high") << QSize(2732, 1536) << 10;
    QTest::newRow("wide and low") << QSize(3840, 600) << 5;
  }
  void theRingGrowsWithALargeWindow() {
    QFETCH(QSize, window);
    QFETCH(int, wide);
    QWidget whole;
    whole.resize(window);
    QWidget control(&whole);
    control.resize(200, 100);
    QCOMPARE(int(kFocusRingWidth * markScale(control)), wide);
    QCOMPARE(painted(control), wide);
  }

  void withoutRingsNothingIsPainted() {
    QWidget control;
    control.resize(200, 100);
    {
      const platform::WithoutFocusRings none;
      QCOMPARE(painted(control), 0);
    }
    QCOMPARE(painted(control), 5);
  }
};

const prova::Iscrizione<FocusRingTest, QApplication> kIscritta;

}  // namespace focus_ring_test

#include "focus_ring_test.moc"
