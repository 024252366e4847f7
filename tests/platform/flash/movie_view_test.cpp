#include "platform/flash/movie_view.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "hand_made.h"

using namespace hand_made;
using platform::flash::MovieView;

namespace {

// A clock that a test moves by hand.
class HandTicker final : public platform::Ticker {
 public:
  explicit HandTicker(std::function<void()> tick) : tick_(std::move(tick)) {}
  void setInterval(int milliseconds) override { interval_ = milliseconds; }
  [[nodiscard]] int interval() const override { return interval_; }
  void start() override { running_ = true; }
  void stop() override { running_ = false; }
  [[nodiscard]] bool isRunning() const override { return running_; }
  void tick() { tick_(); }

 private:
  std::function<void()> tick_;
  int interval_ = 0;
  bool running_ = false;
};

class HandTime final : public platform::TimeSource {
 public:
  [[nodiscard]] double secondsSinceMidnight() const override { return 0; }
  void letEventsRun() override { QCoreApplication::processEvents(); }
  void sleepUntilEvent(double) override {}
  [[nodiscard]] std::unique_ptr<platform::Ticker> makeTicker(std::function<void()> tick) override {
    auto made = std::make_unique<HandTicker>(std::move(tick));
    ticker = made.get();
    return made;
  }

  HandTicker* ticker = nullptr;
};

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

void moveMouse(QWidget& widget, QPointF to) {
  QMouseEvent event(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, Qt::NoButton, {});
  QCoreApplication::sendEvent(&widget, &event);
}

QByteArray redButtonTelling(const char* command, const char* args) {
  const QByteArray records = u8(9) + u16(1) + u16(1) + shift(0, 0) + u8(0);
  return tag(7, u16(2) + records + tell(command, args) + u8(0));
}

}  // namespace

class MovieViewTest : public QObject {
  Q_OBJECT

 private:
  // Writes a movie, gives its path.
  QString saved(const QByteArray& bytes) {
    const QString path = folder_.filePath(QStringLiteral("%1.swf").arg(++count_));
    QFile out(path);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size()) {
      qFatal("cannot write the movie");
    }
    return path;
  }

  // A board of 100 by 50 pixels with two hidden-able clips, each a square of 10 pixels.
  QString board() {
    return saved(file(square(1, 10, 0xFF0000) + sprite(3, place(1, 1) + showFrame()) +
                          place(1, 3, 10, 10, "u1") + place(2, 3, 60, 30, "u2") + showFrame(),
                      6, 100, 50));
  }

  QTemporaryDir folder_;
  int count_ = 0;

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
    view.setMovie(saved(file(tag(9, u8(0) + u8(0) + u8(255)) + square(1, 300, 0xFF0000) +
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
    view.setClipProperty(QStringLiteral("u1"), 7, QStringLiteral("0"));
    view.setClipProperty(QStringLiteral("u2"), 6, QStringLiteral("50"));
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
    view.setClipProperty(QStringLiteral("u1"), 7, QStringLiteral("0"));
    view.setClipProperty(QStringLiteral("u2"), 6, QStringLiteral("40"));
    QTRY_VERIFY(!watch.painted.isEmpty());
    // The clips stand at 20..40 by 20..40 and 120..140 by 60..80 here, with a pixel around them.
    const QRegion allowed = QRegion(19, 19, 22, 22) + QRegion(119, 59, 22, 22);
    QVERIFY((watch.painted - allowed).isEmpty());
    QVERIFY(watch.painted.contains(QPoint(30, 30)));
    QVERIFY(watch.painted.contains(QPoint(130, 70)));
    // What does not change is not painted, also when something else is.
    watch.painted = {};
    view.setClipProperty(QStringLiteral("u1"), 7, QStringLiteral("0"));
    view.setClipProperty(QStringLiteral("u2"), 7, QStringLiteral("0"));
    QTRY_VERIFY(!watch.painted.isEmpty());
    QVERIFY(!watch.painted.intersects(QRect(19, 19, 22, 22)));
  }

  void theTickerRunsOnlyWhileSomethingCanChange() {
    HandTime time;
    MovieView view(time);
    view.setMovie(board());
    QVERIFY(!time.ticker->isRunning());
    view.setMovie(
        saved(file(doAction(stop()) + showFrame() + showFrame() + doAction(stop()) + showFrame(), 6,
                   100, 50, 3)));
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

  void commandsArePostedAndInOrder() {
    HandTime time;
    MovieView view(time);
    QSignalSpy spy(&view, &MovieView::fsCommand);
    view.setMovie(saved(file(doAction(tell("a", "1") + tell("b", "cambio")) + showFrame())));
    QCOMPARE(spy.size(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy[0], (QVariantList{QStringLiteral("a"), QStringLiteral("1")}));
    QCOMPARE(spy[1], (QVariantList{QStringLiteral("b"), QStringLiteral("cambio")}));
  }

  void aCommandOfAMovieThatWasReplacedIsDropped() {
    HandTime time;
    MovieView view(time);
    QSignalSpy spy(&view, &MovieView::fsCommand);
    view.setMovie(saved(file(doAction(tell("old")) + showFrame())));
    view.setMovie(saved(file(doAction(tell("new")) + showFrame())));
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy[0][0].toString(), QStringLiteral("new"));
  }

  void aReceiverMayDestroyTheViewOrCallIt() {
    HandTime time;
    auto* view = new MovieView(time);
    QObject::connect(view, &MovieView::fsCommand, view, [view](const QString& command) {
      if (command == QStringLiteral("first")) {
        view->gotoFrame(2);
      } else {
        delete view;
      }
    });
    const QPointer<MovieView> alive(view);
    view->setMovie(saved(file(doAction(tell("first") + stop()) + showFrame() +
                                  doAction(tell("second") + tell("third")) + showFrame(),
                              6, 100, 50, 2)));
    QCoreApplication::processEvents();
    QTRY_VERIFY(alive.isNull());
  }

  void settingTheSameMovieLoadsItAnew() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    const QString path = board();
    view.setMovie(path);
    view.setClipProperty(QStringLiteral("u1"), 7, QStringLiteral("0"));
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
    view.setMovie(bytes == "(none)" ? folder_.filePath(QStringLiteral("none.swf")) : saved(bytes));
    view.setClipProperty(QStringLiteral("u1"), 7, QStringLiteral("1"));
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

  void aClickOnAButtonRaisesItsCommandWhereItIsSeen() {
    HandTime time;
    MovieView view(time);
    view.resize(200, 200);
    QSignalSpy spy(&view, &MovieView::fsCommand);
    view.setMovie(saved(file(square(1, 10, 0xFF0000) + redButtonTelling("ua3", "unitainattesa") +
                                 place(1, 2, 10, 10) + showFrame(),
                             6, 100, 50)));
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(15, 15));
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 0);
    QTest::mouseClick(&view, Qt::RightButton, {}, QPoint(30, 80));
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 0);
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(30, 80));
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy[0], (QVariantList{QStringLiteral("ua3"), QStringLiteral("unitainattesa")}));
    // The second press of a double click comes as an event of its own, and counts.
    QTest::mouseDClick(&view, Qt::LeftButton, {}, QPoint(30, 80));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, QPoint(30, 80));
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 2);
  }

  void thePointingHandIsShownOverWhatCanBeClickedAndGivesTheOwnersCursorBack() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    view.setCursor(Qt::CrossCursor);
    view.setMovie(saved(file(square(1, 10, 0xFF0000) + redButtonTelling("a", "b") +
                                 sprite(5, place(1, 2) + showFrame()) + place(1, 5, 10, 10, "c") +
                                 showFrame(),
                             6, 100, 50)));
    moveMouse(view, QPoint(15, 15));
    QCoreApplication::processEvents();
    QCOMPARE(view.cursor().shape(), Qt::PointingHandCursor);
    view.setClipProperty(QStringLiteral("c"), 7, QStringLiteral("0"));
    QCoreApplication::processEvents();
    QCOMPARE(view.cursor().shape(), Qt::CrossCursor);
    view.setClipProperty(QStringLiteral("c"), 7, QStringLiteral("1"));
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
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&view);
    QVERIFY(interface != nullptr);
    QCOMPARE(interface->role(), QAccessible::Graphic);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("3 decine, 4 unità"));
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
    view.setMovie(
        saved(file(rectangleShape(1, 40, 40, 120, 120, 0) + place(1, 1) + showFrame(), 6, 8, 8)));
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

  void aViewThatIsHiddenWhilePressedLetsGo() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    view.setMovie(
        saved(file(square(1, 10, 0xFF0000) + redButtonTelling("a", "b") + place(1, 2) + showFrame(),
                   6, 100, 50)));
    view.show();
    QSignalSpy spy(&view, &MovieView::fsCommand);
    QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(5, 5));
    view.hide();
    view.show();
    QTest::mouseRelease(&view, Qt::LeftButton, {}, QPoint(5, 5));
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 0);
  }
};

QTEST_MAIN(MovieViewTest)
#include "movie_view_test.moc"
