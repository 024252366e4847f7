// Movies that ask for much, in a window: it goes on, and one line tells of them.

#include <QApplication>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>

#include "costly.h"
#include "platform/flash/limits.h"
#include "platform/flash/movie_view.h"
#include "step_cost.h"
#include "support/iscrizione.h"
#include "view_bench.h"

namespace costly_view_test {

using namespace hand_made;
using namespace view_bench;
using platform::flash::MovieView;
using step_cost::costOf;

namespace {

QStringList lines;

void remember(QtMsgType, const QMessageLogContext&, const QString& line) {
  lines << line;
}

// The frames of a movie that does this for ever in its second one.
QByteArray endlessFrames(const QByteArray& more = {}) {
  return file(square(1, 10, 0xFF0000) + place(1, 1) + more + showFrame() +
                  doAction(costly::forEver(pushText("x") + action(0x17))) + showFrame() +
                  remove(1) + showFrame(),
              6, 100, 50, 3);
}

}  // namespace

class CostlyViewTest : public QObject {
  Q_OBJECT

 private:
  MovieFolder folder_;

 private Q_SLOTS:
  void thousandsOfClipsThatChangeArePaintedAsOnePicture() {
    HandTime time;
    MovieView view(time);
    view.resize(1920, 1080);
    view.setMovie(folder_.saved(costly::changingClips(64)));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCoreApplication::processEvents();
    for (int i = 0; i < 3; ++i) {
      const auto cost = costOf([&] {
        time.ticker->tick();
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
      });
      QVERIFY2(cost.isBounded(), qPrintable(QString::number(cost.milliseconds)));
      // As it is shown, it is what a picture of the whole would be.
      QCOMPARE(view.currentFrame(), 1);
    }
  }

  void aRegionOfThousandsOfPartsIsPaintedAsOnePicture() {
    HandTime time;
    MovieView view(time);
    view.resize(1920, 1080);
    view.setMovie(folder_.saved(costly::changingClips(64)));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QRegion parts;
    for (int y = 0; y < 1080; y += 17) {
      for (int x = 0; x < 1920; x += 30) parts += QRect(x, y, 10, 8);
    }
    const auto cost = costOf([&] { view.repaint(parts); });
    QVERIFY2(cost.isBounded(), qPrintable(QString::number(cost.milliseconds)));
  }

  void aMovieThatTakesTooMuchStandsStillAndOneLineSaysSo_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("in a tick") << endlessFrames();
    QTest::newRow("in its first frame")
        << endlessFrames(doAction(costly::forEver(pushText("x") + action(0x17))));
    QTest::newRow("in a picture") << costly::masksThatTakeTurns();
    QTest::newRow("in a picture of too many things") << costly::squaresBeside(6251);
    QTest::newRow("in loading") << costly::unreadableTags();
  }

  void aMovieThatTakesTooMuchStandsStillAndOneLineSaysSo() {
    QFETCH(QByteArray, bytes);
    HandTime time;
    MovieView view(time);
    view.resize(1920, 1080);
    lines.clear();
    const QtMessageHandler before = qInstallMessageHandler(remember);
    view.setMovie(folder_.saved(bytes));
    for (int i = 0; i < 5; ++i) {
      if (time.ticker->isRunning()) time.ticker->tick();
      (void)view.grab();
      QCoreApplication::processEvents();
    }
    qInstallMessageHandler(before);
    QVERIFY(!time.ticker->isRunning());
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.front().contains(QStringLiteral("it is shown as far as it came")),
             qPrintable(lines.front()));
  }

  void whatCameBeforeTheCutIsShownAndTheHostGoesOn() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("as far as it came")));
    view.setMovie(folder_.saved(endlessFrames()));
    time.ticker->tick();
    QCOMPARE(view.currentFrame(), 2);
    QCOMPARE(view.grab().toImage().pixel(5, 5), 0xFFFF0000);
    view.gotoFrame(3);
    QCOMPARE(view.currentFrame(), 3);
    QCOMPARE(view.grab().toImage().pixel(5, 5), 0xFFFFFFFF);
    view.setMovie(folder_.saved(
        file(square(1, 10, 0xFF) + place(1, 1) + showFrame() + showFrame(), 6, 100, 50, 2)));
    QVERIFY(time.ticker->isRunning());
    QCOMPARE(view.grab().toImage().pixel(5, 5), 0xFF0000FF);
  }

  void ordinaryMoviesAreNotToldOf() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    lines.clear();
    const QtMessageHandler before = qInstallMessageHandler(remember);
    view.setMovie(folder_.saved(costly::changingClips(8)));
    for (int i = 0; i < 50; ++i) {
      time.ticker->tick();
      (void)view.grab();
    }
    qInstallMessageHandler(before);
    QCOMPARE(lines, QStringList());
  }
};

const prova::Iscrizione<CostlyViewTest, QApplication> kIscritta;

}  // namespace costly_view_test

#include "costly_view_test.moc"
