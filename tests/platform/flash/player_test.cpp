#include "platform/flash/player.h"

#include <QStringList>
#include <QTest>

#include "frames.h"
#include "hand_made.h"
#include "running.h"
#include "support/iscrizione.h"

namespace player_test {

using namespace frames;
using namespace hand_made;
using platform::flash::Property;
using running::Running;
using running::words;

class PlayerTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void loadingShowsTheFirstFrameAndRunsItsActions() {
    Running movie(fourFrames({}), 6, 4);
    QCOMPARE(movie.player.currentFrame(), 1);
    QCOMPARE(movie.take(), words("1"));
  }

  void aTickGoesOneFrameOnAndAfterTheLastToTheFirst() {
    Running movie(fourFrames({}), 6, 4);
    for (int i = 0; i < 4; ++i) {
      movie.player.tick();
    }
    QCOMPARE(movie.take(), words("1 2 3 4 1"));
    QCOMPARE(movie.player.currentFrame(), 1);
  }

  void aMovieOfOneFrameRunsItsActionsOnce() {
    Running movie(frame("1"));
    movie.player.tick();
    movie.player.tick();
    QCOMPARE(movie.take(), words("1"));
    QVERIFY(!movie.player.canChange());
  }

  void stopHoldsTheTimelineAndPlayLetsItGoOn() {
    Running movie(fourFrames(stop()), 6, 4);
    QVERIFY(!movie.player.canChange());
    movie.player.tick();
    QCOMPARE(movie.player.currentFrame(), 1);
    movie.player.play();
    QVERIFY(movie.player.canChange());
    movie.player.tick();
    QCOMPARE(movie.player.currentFrame(), 2);
    movie.player.stop();
    QVERIFY(!movie.player.canChange());
  }

  void theHostsGotoCountsFromOneRunsTheFrameAndStopsThere() {
    Running movie(fourFrames({}), 6, 4);
    movie.player.gotoFrame(3);
    QCOMPARE(movie.player.currentFrame(), 3);
    QCOMPARE(movie.take(), words("1 3"));
    movie.player.tick();
    QCOMPARE(movie.player.currentFrame(), 3);
    movie.player.play();
    movie.player.tick();
    QCOMPARE(movie.take(), words("4"));
  }

  void theHostsGotoBelowOneShowsTheFirstFrame() {
    Running movie(fourFrames({}), 6, 4);
    movie.player.gotoFrame(3);
    movie.player.gotoFrame(0);
    QCOMPARE(movie.player.currentFrame(), 1);
  }

  void aGotoRunsOnlyTheTargetsActionsAfterTheRestOfTheBlock() {
    Running movie(fourFrames(gotoFrame(2) + tell("rest")), 6, 4);
    QCOMPARE(movie.take(), words("1 rest 3"));
    QCOMPARE(movie.player.currentFrame(), 3);
    movie.player.tick();
    QCOMPARE(movie.player.currentFrame(), 3);
  }

  void aGotoToTheCurrentFrameRunsNothingButStops() {
    Running movie(fourFrames({}), 6, 4);
    movie.player.gotoFrame(1);
    QCOMPARE(movie.take(), words("1"));
    movie.player.tick();
    QCOMPARE(movie.player.currentFrame(), 1);
  }

  void aGotoPastTheEndShowsTheLastFrameWithoutItsActions() {
    Running movie(fourFrames(gotoFrame(9)), 6, 4);
    QCOMPARE(movie.player.currentFrame(), 4);
    QCOMPARE(movie.take(), words("1"));
  }

  void nextFrameAndPreviousFrameStop() {
    Running movie(fourFrames(action(0x04)), 6, 4);
    QCOMPARE(movie.take(), words("1 2"));
    movie.player.tick();
    QCOMPARE(movie.player.currentFrame(), 2);
    Running back(frame("1") + frame("2", action(0x05)), 6, 2);
    back.player.tick();
    QCOMPARE(back.take(), words("1 2 1"));
    back.player.tick();
    QCOMPARE(back.player.currentFrame(), 1);
  }

  void gotoLabelFindsTheFrameInAnyCaseOfLettersUpToVersionSix() {
    const QByteArray tags =
        frame("1", action(0x8C, text("QUI"))) + frame("2") + tag(43, text("qui")) + frame("3");
    QCOMPARE(Running(tags, 6, 3).player.currentFrame(), 3);
    QCOMPARE(Running(tags, 7, 3).player.currentFrame(), 1);
  }

  void anUnknownLabelDoesNothingAndDoesNotStop() {
    Running movie(fourFrames(action(0x8C, text("nowhere"))), 6, 4);
    movie.player.tick();
    QCOMPARE(movie.take(), words("1 2"));
  }

  void gotoFrame2CountsFromOneAndItsBitDecidesAboutPlaying() {
    Running stopped(fourFrames(pushNumber(3) + action(0x9F, u8(0))), 6, 4);
    QCOMPARE(stopped.take(), words("1 3"));
    stopped.player.tick();
    QCOMPARE(stopped.player.currentFrame(), 3);
    Running playing(fourFrames(pushNumber(3) + action(0x9F, u8(1))), 6, 4);
    playing.player.tick();
    QCOMPARE(playing.take(), words("1 3 4"));
  }

  void gotoFrame2TakesLabelsNumbersInTextsAndAScenesBias() {
    const QByteArray tags = frame("1", pushText("qui") + action(0x9F, u8(0))) + frame("2") +
                            tag(43, text("qui")) + frame("3");
    QCOMPARE(Running(tags, 6, 3).player.currentFrame(), 3);
    QCOMPARE(Running(fourFrames(pushText("2") + action(0x9F, u8(0))), 6, 4).player.currentFrame(),
             2);
    QCOMPARE(Running(fourFrames(pushNumber(1) + action(0x9F, u8(2) + u16(2))), 6, 4)
                 .player.currentFrame(),
             3);
  }

  void gotoFrame2WithAPathMovesAnotherClip() {
    Running movie(
        sprite(1, doAction(stop()) + showFrame() + showFrame() + tag(43, text("qui")) + showFrame(),
               3) +
        place(1, 1, 0, 0, "clip") + doAction(pushText("/clip:qui") + action(0x9F, u8(0))) +
        showFrame());
    // Queued behind the clip's own first frame, so its stop does not matter.
    QCOMPARE(movie.player.property(QStringLiteral("clip"), Property::CurrentFrame),
             QStringLiteral("3"));
  }

  void gotosWithinATickAreBounded() {
    Running movie(frame("1", gotoFrame(1)) + frame("2", gotoFrame(0)), 6, 2);
    QVERIFY(movie.take().size() <= 202);
  }

  void clipsRunNewestFirstAndTheRootLast() {
    // The measured order: the sprite is placed before (A) and after (B) the root's own actions.
    const QByteArray tags = sprite(1, frame("A1") + frame("A2"), 2) +
                            sprite(2, frame("B1") + frame("B2"), 2) + place(1, 1) +
                            doAction(tell("r1")) + place(2, 2) + showFrame() + frame("r2");
    Running movie(tags, 6, 2);
    QCOMPARE(movie.take(), words("A1 r1 B1"));
    movie.player.tick();
    QCOMPARE(movie.take(), words("B2 A2 r2"));
  }

  void initActionsRunOnceAndBeforeEverythingElse() {
    const QByteArray tags = sprite(1, frame("A")) + doAction(tell("r")) + place(1, 1) +
                            tag(59, u16(1) + tell("init") + u8(0)) + showFrame() + showFrame();
    Running movie(tags, 6, 2);
    QCOMPARE(movie.take(), words("init r A"));
    movie.player.tick();
    movie.player.tick();
    QCOMPARE(movie.take(), words("r"));
  }

  void loadRunsBeforeTheFirstFrameAndEnterFrameComesOneFrameLaterBeforeThatFrame() {
    // Events of version 6 have 32 bits: load 1, enterFrame 2.
    const auto handler = [](unsigned events, const QByteArray& actions) {
      return u32(events) + u32(std::uint32_t(actions.size())) + actions;
    };
    const QByteArray placed =
        tag(26, u8(0x86) + u16(1) + u16(1) + shift(0, 0) + u16(0) + u32(3) +
                    handler(1, tell("load") + u8(0)) + handler(2, tell("enter") + u8(0)) + u32(0));
    Running movie(sprite(1, frame("1") + frame("2"), 2) + placed + showFrame());
    QCOMPARE(movie.take(), words("load 1"));
    movie.player.tick();
    QCOMPARE(movie.take(), words("enter 2"));
    QVERIFY(movie.player.canChange());
  }

  void clipEventsHaveSixteenBitsUpToVersionFive() {
    const QByteArray actions = tell("load") + u8(0);
    const QByteArray placed =
        tag(26, u8(0x86) + u16(1) + u16(1) + shift(0, 0) + u16(0) + u16(1) + u16(1) +
                    u32(std::uint32_t(actions.size())) + actions + u16(0));
    QCOMPARE(Running(sprite(1, showFrame()) + placed + showFrame(), 5).take(), words("load"));
  }

  void unloadRunsWhenTheClipIsRemoved() {
    const QByteArray actions = tell("unload") + u8(0);
    const QByteArray placed =
        tag(26, u8(0x86) + u16(1) + u16(1) + shift(0, 0) + u16(0) + u32(4) + u32(4) +
                    u32(std::uint32_t(actions.size())) + actions + u32(0));
    Running movie(sprite(1, showFrame()) + placed + showFrame() + remove(1) + showFrame(), 6, 2);
    movie.player.tick();
    QCOMPARE(movie.take(), words("unload"));
  }

  void aClipThatIsInBothFramesKeepsItsPlayheadOverAGoto() {
    const QByteArray clip = sprite(1, showFrame() + showFrame() + showFrame() + showFrame(), 4);
    Running movie(clip + place(1, 1, 0, 0, "c") + showFrame() + showFrame() + showFrame(), 6, 3);
    movie.player.tick();
    movie.player.tick();
    QCOMPARE(movie.player.property(QStringLiteral("c"), Property::CurrentFrame),
             QStringLiteral("3"));
    movie.player.gotoFrame(1);
    QCOMPARE(movie.player.property(QStringLiteral("c"), Property::CurrentFrame),
             QStringLiteral("3"));
  }

  void aClipThatIsRemovedInBetweenIsNewAfterAGoto() {
    const QByteArray clip = sprite(1, showFrame() + showFrame() + showFrame() + showFrame(), 4);
    Running movie(clip + place(1, 1, 0, 0, "c") + showFrame() + remove(1) + showFrame() +
                      place(1, 1, 0, 0, "c") + showFrame() + showFrame(),
                  6, 4);
    movie.player.setProperty(QStringLiteral("c"), Property::Visible, QStringLiteral("0"));
    movie.player.gotoFrame(4);
    QCOMPARE(movie.player.property(QStringLiteral("c"), Property::Visible), QStringLiteral("1"));
    movie.player.setProperty(QStringLiteral("c"), Property::Visible, QStringLiteral("0"));
    movie.player.gotoFrame(3);
    QCOMPARE(movie.player.property(QStringLiteral("c"), Property::Visible), QStringLiteral("0"));
    movie.player.gotoFrame(1);
    QCOMPARE(movie.player.property(QStringLiteral("c"), Property::Visible), QStringLiteral("1"));
  }

  void hiddenClipsStayHiddenWhenTheTimelineLoops() {
    Running movie(sprite(1, showFrame()) + place(1, 1, 0, 0, "c") + showFrame() + showFrame(), 6,
                  2);
    movie.player.setProperty(QStringLiteral("c"), Property::Visible, QStringLiteral("0"));
    movie.player.tick();
    movie.player.tick();
    QCOMPARE(movie.player.currentFrame(), 1);
    QCOMPARE(movie.player.property(QStringLiteral("c"), Property::Visible), QStringLiteral("0"));
  }

  void theTimelineLeavesAClipAloneThatTheHostHasMovedButNotOneThatItHasHidden() {
    const QByteArray tags = sprite(1, showFrame()) + place(1, 1, 0, 0, "a") +
                            place(2, 1, 0, 0, "b") + place(3, 1, 0, 0, "c") + showFrame() +
                            moveTo(1, 50, 0) + moveTo(2, 50, 0) + moveTo(3, 50, 0) + showFrame();
    Running movie(tags, 6, 2);
    movie.player.setProperty(QStringLiteral("a"), Property::X, QStringLiteral("7"));
    movie.player.setProperty(QStringLiteral("b"), Property::Visible, QStringLiteral("0"));
    movie.player.setProperty(QStringLiteral("c"), Property::Alpha, QStringLiteral("50"));
    movie.player.tick();
    QCOMPARE(movie.player.property(QStringLiteral("a"), Property::X), QStringLiteral("7"));
    QCOMPARE(movie.player.property(QStringLiteral("b"), Property::X), QStringLiteral("50"));
    QCOMPARE(movie.player.property(QStringLiteral("c"), Property::X), QStringLiteral("0"));
  }

  void alphaIsHeldInTwoHundredAndFiftySixths() {
    Running movie(sprite(1, showFrame()) + place(1, 1, 0, 0, "a") + showFrame());
    movie.player.setProperty(QStringLiteral("a"), Property::Alpha, QStringLiteral("50"));
    QCOMPARE(movie.player.property(QStringLiteral("a"), Property::Alpha), QStringLiteral("50"));
    movie.player.setProperty(QStringLiteral("a"), Property::Alpha, QStringLiteral("33"));
    // 33 * 256 / 100 = 84.48; 84 / 256 = 32.8125 %.
    QCOMPARE(movie.player.property(QStringLiteral("a"), Property::Alpha),
             QStringLiteral("32.8125"));
  }

  void targetsMayBeNamesAndPathsAndTheRoot_data() {
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("x");
    QTest::newRow("name") << "a"
                          << "10";
    QTest::newRow("slash") << "/a"
                           << "10";
    QTest::newRow("path") << "a/b"
                          << "20";
    QTest::newRow("dots") << "a.b"
                          << "20";
    QTest::newRow("from the root") << "_root.a"
                                   << "10";
    QTest::newRow("level") << "_level0.a.b"
                           << "20";
    QTest::newRow("another case") << "A/B"
                                  << "20";
    QTest::newRow("root") << ""
                          << "0";
    QTest::newRow("nothing there") << "a/c"
                                   << "";
  }

  void targetsMayBeNamesAndPathsAndTheRoot() {
    QFETCH(QString, target);
    QFETCH(QString, x);
    Running movie(sprite(1, showFrame()) + sprite(2, place(1, 1, 20, 0, "b") + showFrame()) +
                  place(1, 2, 10, 0, "a") + showFrame());
    QCOMPARE(movie.player.property(target, Property::X), x);
  }

  void aNameThatNoClipHasAndAValueThatIsNoNumberAreIgnored_data() {
    QTest::addColumn<int>("version");
    // The scripts of version 4 take any text for a number.
    for (const int version : {4, 6}) QTest::addRow("version %d", version) << version;
  }
  void aNameThatNoClipHasAndAValueThatIsNoNumberAreIgnored() {
    QFETCH(int, version);
    Running movie(sprite(1, showFrame()) + place(1, 1, 5, 0, "a") + showFrame(), version);
    for (const char* none : {"abc", "1x", ""}) {
      movie.player.setProperty(QStringLiteral("a"), Property::Visible, QString::fromLatin1(none));
      QCOMPARE(movie.player.property(QStringLiteral("a"), Property::Visible), QStringLiteral("1"));
    }
    movie.player.setProperty(QStringLiteral("nobody"), Property::X, QStringLiteral("1"));
    movie.player.setProperty(QStringLiteral("a"), Property::X, QStringLiteral("far"));
    movie.player.setProperty(QStringLiteral("a"), Property::X, QString());
    movie.player.setProperty(QStringLiteral("a"), Property(99), QStringLiteral("1"));
    movie.player.setProperty(QStringLiteral("a"), Property(-1), QStringLiteral("1"));
    QCOMPARE(movie.player.property(QStringLiteral("a"), Property::X), QStringLiteral("5"));
  }

  void placeAndScaleAndRotationCanBeSetAndRead() {
    Running movie(square(1, 10, 0) + sprite(2, place(1, 1) + showFrame()) + place(1, 2, 5, 6, "a") +
                  showFrame());
    const auto set = [&](Property property, const char* value) {
      movie.player.setProperty(QStringLiteral("a"), property, QString::fromLatin1(value));
      return movie.player.property(QStringLiteral("a"), property);
    };
    QCOMPARE(set(Property::X, "12.5"), QStringLiteral("12.5"));
    QCOMPARE(set(Property::Y, "-3"), QStringLiteral("-3"));
    QCOMPARE(set(Property::ScaleX, "200"), QStringLiteral("200"));
    QCOMPARE(set(Property::ScaleY, "50"), QStringLiteral("50"));
    QCOMPARE(movie.player.property(QStringLiteral("a"), Property::Width), QStringLiteral("20"));
    QCOMPARE(movie.player.property(QStringLiteral("a"), Property::Height), QStringLiteral("5"));
    QCOMPARE(set(Property::Rotation, "90").toDouble(), 90.0);
    QCOMPARE(qRound(movie.player.property(QStringLiteral("a"), Property::Width).toDouble()), 5);
    QCOMPARE(movie.player.property(QStringLiteral("a"), Property::Target), QStringLiteral("/a"));
    QCOMPARE(movie.player.property(QStringLiteral("a"), Property::Name), QStringLiteral("a"));
    QCOMPARE(movie.player.property(QString(), Property::Name), QString());
    QCOMPARE(movie.player.property(QString(), Property::Target), QStringLiteral("/"));
    QCOMPARE(movie.player.property(QString(), Property::TotalFrames), QStringLiteral("1"));
  }

  void aNewCharacterOnADepthTakesOverPlaceAndName() {
    // PlaceObject2 with a character and the move bit.
    const QByteArray replace = tag(26, u8(0x03) + u16(1) + u16(2));
    Running movie(sprite(1, showFrame()) + sprite(2, showFrame() + showFrame(), 2) +
                      place(1, 1, 30, 0, "a") + showFrame() + replace + showFrame(),
                  6, 2);
    movie.player.tick();
    QCOMPARE(movie.player.property(QStringLiteral("a"), Property::X), QStringLiteral("30"));
    QCOMPARE(movie.player.property(QStringLiteral("a"), Property::TotalFrames),
             QStringLiteral("2"));
  }

  void scriptsOfARemovedClipDoNotRun() {
    // The clip's second frame removes nothing itself; the root does so in the same tick, before
    // queued scripts run.
    Running movie(sprite(1, showFrame() + frame("never"), 2) + place(1, 1) + showFrame() +
                      remove(1) + showFrame(),
                  6, 2);
    movie.player.tick();
    QCOMPARE(movie.take(), QStringList());
  }
};

const prova::Iscrizione<PlayerTest> kIscritta;

}  // namespace player_test

#include "player_test.moc"
