#include "platform/flash/movie_view.h"

#include <QAccessible>
#include <QApplication>
#include <QPaintEvent>
#include <QRegularExpression>
#include <QTest>

#include "hand_made.h"
#include "support/iscrizione.h"
#include "view_bench.h"

namespace movie_view_test {

using namespace hand_made;
using platform::flash::MovieView;
using platform::flash::Property;
using namespace view_bench;

namespace {

// Remembers where the view was asked to paint.
class PaintWatch final : public QObject {
 public:
  explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      painted += static_cast<QPaintEvent*>(event)->region();
    }
    return false;
  }

  QRegion painted;
};

}  // namespace

class MovieViewTest : public QObject {
  Q_OBJECT

 private:
  // A board of 100 by 50 pixels with two hidden-able clips, each a square of 10 pixels.
  QString board() {
    return folder_.saved(file(square(1, 10, 0xFF0000) + sprite(3, place(1, 1) + showFrame()) +
                                  place(1, 3, 10, 10, "u1") + place(2, 3, 60, 30, "u2") +
                                  showFrame(),
                              6, 100, 50));
  }

  MovieFolder folder_;

 private Q_SLOTS:
  void theBoardIsShownWithItsBackgroundAndClips() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    view.setMovie(board());
    const QImage image = view.grab().toImage();
    QCOMPARE(image.pixel(15, 15), 0xFFFF0000);
    QCOMPARE(image.pixel(65, 35), 0xFFFF0000);
    QCOMPARE(image.pixel(5, 5), 0xFFFFFFFF);
    QCOMPARE(view.currentFrame(), 1);
  }

  void theBoardIsAsLargeAsFitsAndStandsInTheMiddle() {
    HandTime time;
    MovieView view(time);
    view.resize(200, 200);  // twice as large, 50 free pixels above and below
    view.setMovie(board());
    const QImage image = view.grab().toImage();
    QCOMPARE(image.pixel(20, 70), 0xFFFF0000);
    QCOMPARE(image.pixel(19, 70), 0xFFFFFFFF);
    QCOMPARE(image.pixel(20, 69), 0xFFFFFFFF);
    QCOMPARE(image.pixel(39, 89), 0xFFFF0000);
    QCOMPARE(image.pixel(40, 89), 0xFFFFFFFF);
  }

  void whatLiesBesideTheStageIsNotShown() {
    HandTime time;
    MovieView view(time);
    view.resize(200, 200);
    view.setMovie(folder_.saved(file(tag(9, u8(0) + u8(0) + u8(255)) + square(1, 300, 0xFF0000) +
                                         place(1, 1, -100, -100) + showFrame(),
                                     6, 100, 50)));
    const QImage image = view.grab().toImage();
    QCOMPARE(image.pixel(100, 49), 0xFF0000FF);
    QCOMPARE(image.pixel(100, 50), 0xFFFF0000);
    QCOMPARE(image.pixel(100, 149), 0xFFFF0000);
    QCOMPARE(image.pixel(100, 150), 0xFF0000FF);
  }

  void propertiesShowAndHideAndFadeClips() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    view.setMovie(board());
    view.setClipProperty(QStringLiteral("u1"), Property::Visible, QStringLiteral("0"));
    view.setClipProperty(QStringLiteral("u2"), Property::Alpha, QStringLiteral("50"));
    const QImage image = view.grab().toImage();
    QCOMPARE(image.pixel(15, 15), 0xFFFFFFFF);
    QVERIFY(std::abs(qGreen(image.pixel(65, 35)) - 127) <= 2);
  }

  void aPropertyOfOneClipRepaintsItsPlaceOnly() {
    HandTime time;
    MovieView view(time);
    view.resize(200, 100);
    view.setMovie(board());
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCoreApplication::processEvents();
    PaintWatch watch(view);
    view.setClipProperty(QStringLiteral("u1"), Property::Visible, QStringLiteral("0"));
    view.setClipProperty(QStringLiteral("u2"), Property::Alpha, QStringLiteral("40"));
    QTRY_VERIFY(!watch.painted.isEmpty());
    // The clips stand at 20..40 by 20..40 and 120..140 by 60..80 here, with a pixel around them.
    const QRegion allowed = QRegion(19, 19, 22, 22) + QRegion(119, 59, 22, 22);
    QVERIFY((watch.painted - allowed).isEmpty());
    QVERIFY(watch.painted.contains(QPoint(30, 30)));
    QVERIFY(watch.painted.contains(QPoint(130, 70)));
    // What does not change is not painted, also when something else is.
    watch.painted = {};
    view.setClipProperty(QStringLiteral("u1"), Property::Visible, QStringLiteral("0"));
    view.setClipProperty(QStringLiteral("u2"), Property::Visible, QStringLiteral("0"));
    QTRY_VERIFY(!watch.painted.isEmpty());
    QVERIFY(!watch.painted.intersects(QRect(19, 19, 22, 22)));
  }

  void theTickerRunsOnlyWhileSomethingCanChange() {
    HandTime time;
    MovieView view(time);
    view.setMovie(board());
    QVERIFY(!time.ticker->isRunning());
    view.setMovie(folder_.saved(
        file(doAction(stop()) + showFrame() + showFrame() + doAction(stop()) + showFrame(), 6, 100,
             50, 3)));
    QVERIFY(!time.ticker->isRunning());
    QCOMPARE(time.ticker->interval(), 83);  // 12 frames a second
    view.gotoFrame(2);
    QVERIFY(!time.ticker->isRunning());
    QCOMPARE(view.currentFrame(), 2);
    view.play();
    QVERIFY(time.ticker->isRunning());
    time.ticker->tick();
    QCOMPARE(view.currentFrame(), 3);
    QVERIFY(!time.ticker->isRunning());
  }

  void settingTheSameMovieLoadsItAnew() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    const QString path = board();
    view.setMovie(path);
    view.setClipProperty(QStringLiteral("u1"), Property::Visible, QStringLiteral("0"));
    view.setMovie(path);
    QCOMPARE(view.grab().toImage().pixel(15, 15), 0xFFFF0000);
  }

  void aMissingOrBrokenFileGivesAnEmptyBoardThatTakesEveryCall_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("missing") << QByteArray("(none)");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("broken") << file(showFrame()).left(12);
  }

  void aMissingOrBrokenFileGivesAnEmptyBoardThatTakesEveryCall() {
    QFETCH(QByteArray, bytes);
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    view.setMovie(board());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot be shown")));
    view.setMovie(bytes == "(none)" ? folder_.path(QStringLiteral("none.swf"))
                                    : folder_.saved(bytes));
    view.setClipProperty(QStringLiteral("u1"), Property::Visible, QStringLiteral("1"));
    view.gotoFrame(2);
    view.play();
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(15, 15));
    QCOMPARE(view.grab().toImage().pixel(15, 15), 0xFFFFFFFF);
    QCOMPARE(view.currentFrame(), 0);
    QVERIFY(!time.ticker->isRunning());
    view.setMovie(board());
    QCOMPARE(view.grab().toImage().pixel(15, 15), 0xFFFF0000);
  }

  void aFolderIsNoMovie() {
    HandTime time;
    MovieView view(time);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot be shown")));
    view.setMovie(folder_.path());
    QCOMPARE(view.currentFrame(), 0);
  }

  void thePointingHandIsShownOverWhatCanBeClickedAndGivesTheOwnersCursorBack() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    view.setCursor(Qt::CrossCursor);
    view.setMovie(folder_.saved(file(square(1, 10, 0xFF0000) + redButtonTelling("a", "b") +
                                         sprite(5, place(1, 2) + showFrame()) +
                                         place(1, 5, 10, 10, "c") + showFrame(),
                                     6, 100, 50)));
    moveMouse(view, QPoint(15, 15));
    QCoreApplication::processEvents();
    QCOMPARE(view.cursor().shape(), Qt::PointingHandCursor);
    view.setClipProperty(QStringLiteral("c"), Property::Visible, QStringLiteral("0"));
    QCoreApplication::processEvents();
    QCOMPARE(view.cursor().shape(), Qt::CrossCursor);
    view.setClipProperty(QStringLiteral("c"), Property::Visible, QStringLiteral("1"));
    QCoreApplication::processEvents();
    QCOMPARE(view.cursor().shape(), Qt::PointingHandCursor);
    moveMouse(view, QPoint(50, 15));
    QCoreApplication::processEvents();
    QCOMPARE(view.cursor().shape(), Qt::CrossCursor);
  }

  void theViewTakesTheMouseButNeverTheFocus() {
    HandTime time;
    const MovieView view(time);
    QCOMPARE(view.focusPolicy(), Qt::NoFocus);
  }

  void toAssistiveTechnologyItIsAGraphicWithTheOwnersName() {
    HandTime time;
    MovieView view(time);
    view.setAccessibleName(QStringLiteral("3 decine, 4 unità"));
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&view);
    QVERIFY(told != nullptr);
    QCOMPARE(told->role(), QAccessible::Graphic);
    QCOMPARE(told->text(QAccessible::Name), QStringLiteral("3 decine, 4 unità"));
  }

  void thePictureIsMadeInThePixelsOfTheDevice_data() {
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.25, 1.5, 2.0, 3.0}) {
      QTest::addRow("%g", ratio) << ratio;
    }
  }

  void thePictureIsMadeInThePixelsOfTheDevice() {
    // Edges that lie on whole pixels of the device are sharp, also where they fall between logical
    // pixels: a square from 2 to 6 of a stage of 8, shown on 100 logical pixels.
    QFETCH(double, ratio);
    HandTime time;
    MovieView view(time);
    view.resize(100, 100);
    view.setMovie(folder_.saved(
        file(rectangleShape(1, 40, 40, 120, 120, 0) + place(1, 1) + showFrame(), 6, 8, 8)));
    const int edge = int(100 * ratio);
    QImage image(edge, edge, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::green);
    view.render(&image);
    const double from = 25 * ratio;
    const double to = 75 * ratio;
    for (int x = 0; x < edge; ++x) {
      const double covered =
          std::clamp(std::min(x + 1.0, to) - std::max<double>(x, from), 0.0, 1.0);
      QVERIFY2(std::abs(qRed(image.pixel(x, edge / 2)) - 255 * (1 - covered)) <= 2,
               qPrintable(QString::number(x)));
    }
  }
};

const prova::Iscrizione<MovieViewTest, QApplication> kIscritta;

}  // namespace movie_view_test

#include "movie_view_test.moc"
