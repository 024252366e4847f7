#include <QApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include "hand_made.h"
#include "platform/flash/movie_view.h"
#include "support/iscrizione.h"
#include "view_bench.h"

namespace movie_view_commands_test {

using namespace hand_made;
using platform::flash::MovieView;
using platform::flash::Property;
using namespace view_bench;

// What the movie says to its owner, and when it is heard.
class MovieViewCommandsTest : public QObject {
  Q_OBJECT

 private:
  // A clip "b", a button of 10 pixels that says "click".
  static QByteArray clickedSprite() {
    return square(1, 10, 0xFF0000) + redButtonTelling("click", "") +
           sprite(3, place(1, 2) + showFrame()) + place(1, 3, 0, 0, "b");
  }
  // A movie with that clip, which begins with a script.
  QString clickBoard(const QByteArray& script = {}) {
    return folder_.saved(file(clickedSprite() + doAction(script) + showFrame(), 6, 100, 50));
  }

  MovieFolder folder_;

 private Q_SLOTS:
  void commandsArePostedAndInOrder() {
    HandTime time;
    MovieView view(time);
    QSignalSpy spy(&view, &MovieView::fsCommand);
    view.setMovie(
        folder_.saved(file(doAction(tell("a", "1") + tell("b", "cambio")) + showFrame())));
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
    view.setMovie(folder_.saved(file(doAction(tell("old")) + showFrame())));
    view.setMovie(folder_.saved(file(doAction(tell("new")) + showFrame())));
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
    view->setMovie(folder_.saved(file(doAction(tell("first") + stop()) + showFrame() +
                                          doAction(tell("second") + tell("third")) + showFrame(),
                                      6, 100, 50, 2)));
    QCoreApplication::processEvents();
    QTRY_VERIFY(alive.isNull());
  }

  void whatAClickSaysIsHeardWithItBehindWhatWaited() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    QStringList heard;
    QObject::connect(&view, &MovieView::fsCommand, &view,
                     [&](const QString& command) { heard += command; });
    view.setMovie(clickBoard(tell("start")));
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(heard, (QStringList{QStringLiteral("start"), QStringLiteral("click")}));
    QCoreApplication::processEvents();
    QCOMPARE(heard.size(), 2);
  }

  void aSecondClickFindsWhatTheReceiverOfTheFirstChanged() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    int heard = 0;
    QObject::connect(&view, &MovieView::fsCommand, &view, [&] {
      ++heard;
      view.setClipProperty(QStringLiteral("b"), Property::Visible, QStringLiteral("0"));
    });
    view.setMovie(clickBoard());
    for (int i = 0; i < 2; ++i) QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(5, 5));
    QCoreApplication::processEvents();
    QCOMPARE(heard, 1);
  }

  void theReceiverOfAClickMayDestroyTheView() {
    HandTime time;
    const QPointer<MovieView> view(new MovieView(time));
    view->resize(100, 50);
    int heard = 0;
    QObject::connect(view, &MovieView::fsCommand, view, [&] {
      ++heard;
      delete view.data();
    });
    view->setMovie(clickBoard(tell("start") + tell("more")));
    QTest::mousePress(view, Qt::LeftButton, {}, QPoint(5, 5));
    QVERIFY(view.isNull());
    QCOMPARE(heard, 1);
  }

  void theReceiverOfAClickMayLetEventsRunOrLoadAnotherMovie() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    QStringList heard;
    QObject::connect(&view, &MovieView::fsCommand, &view, [&](const QString& command) {
      heard += command;
      if (command == QStringLiteral("first")) QCoreApplication::processEvents();
      if (command == QStringLiteral("click")) view.setMovie(clickBoard(tell("first")));
    });
    view.setMovie(clickBoard(tell("first") + tell("second")));
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(5, 5));
    QCoreApplication::processEvents();
    QCOMPARE(heard, (QStringList{QStringLiteral("first"), QStringLiteral("second"),
                                 QStringLiteral("click"), QStringLiteral("first")}));
  }

  void whatTheReceiverOfAClickMakesTheMovieSayWaitsForTheQueue() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    int heard = 0;
    bool inside = false;
    QObject::connect(&view, &MovieView::fsCommand, &view, [&] {
      QVERIFY(!inside);
      if (++heard > 5) return;
      inside = true;
      view.gotoFrame(heard % 2 + 1);
      inside = false;
    });
    view.setMovie(folder_.saved(file(clickedSprite() + doAction(tell("one") + stop()) +
                                         showFrame() + doAction(tell("two")) + showFrame(),
                                     6, 100, 50, 2)));
    QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(heard, 1);
    QCoreApplication::processEvents();
    QVERIFY(heard > 1);
  }

  void whatAMoveOfTheMouseSaysIsPosted() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    QSignalSpy spy(&view, &MovieView::fsCommand);
    const QByteArray record = u8(9) + u16(1) + u16(1) + shift(0, 0) + u8(0) + u8(0) + u8(0);
    const QByteArray onRollOver = u16(0) + u16(1) + tell("over") + u8(0);
    view.setMovie(folder_.saved(
        file(square(1, 10, 0xFF0000) +
                 tag(34, u16(2) + u8(0) + u16(record.size() + 2) + record + onRollOver) +
                 place(1, 2) + showFrame(),
             6, 100, 50)));
    moveMouse(view, QPoint(5, 5));
    QCOMPARE(spy.size(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 1);
  }

  void aClickOnAButtonRaisesItsCommandWhereItIsSeen() {
    HandTime time;
    MovieView view(time);
    view.resize(200, 200);
    QSignalSpy spy(&view, &MovieView::fsCommand);
    view.setMovie(
        folder_.saved(file(square(1, 10, 0xFF0000) + redButtonTelling("ua3", "unitainattesa") +
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

  void aViewThatIsHiddenWhilePressedLetsGo() {
    HandTime time;
    MovieView view(time);
    view.resize(100, 50);
    view.setMovie(folder_.saved(
        file(square(1, 10, 0xFF0000) + redButtonTelling("a", "b") + place(1, 2) + showFrame(), 6,
             100, 50)));
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

const prova::Iscrizione<MovieViewCommandsTest, QApplication> kIscritta;

}  // namespace movie_view_commands_test

#include "movie_view_commands_test.moc"
