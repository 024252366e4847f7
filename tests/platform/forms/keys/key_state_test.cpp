#include <QCoreApplication>
#include <QTest>
#include <vector>

#include "key_listener.h"
#include "support/iscrizione.h"

namespace key_state_test {

using namespace std::chrono_literals;
using namespace key_listener;
using platform::HeldKey;
using platform::KeyId;
using platform::KeyInput;
using platform::KeyState;
using platform::RepeatMarks;
using std::chrono::milliseconds;
using Press = KeyState::Press;
using Release = KeyState::Release;

// Presses, releases and repeats of keys that are pressed and let go in one window.
class KeyStateTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aKeyIsKnownByItsScanCodeOrElseByItsKeyCode() {
    QVERIFY(KeyId::of(65, 0x20) == KeyId::of(65, 0x41));
    QVERIFY(KeyId::of(0, 0x20) == KeyId::of(0, 0x20));
    QVERIFY(KeyId::of(0, 0x20) != KeyId::of(0, 0x41));
    QVERIFY(KeyId::of(0x20, 7) != KeyId::of(0, 0x20));
  }

  void aTapOfThirtyMillisecondsIsOnePressAndOneRelease_data() {
    QTest::addColumn<int>("marks");
    QTest::newRow("unreliable") << static_cast<int>(RepeatMarks::Unreliable);
    QTest::newRow("presses only") << static_cast<int>(RepeatMarks::PressesOnly);
    QTest::newRow("flagged") << static_cast<int>(RepeatMarks::Flagged);
  }
  void aTapOfThirtyMillisecondsIsOnePressAndOneRelease() {
    QFETCH(int, marks);
    Listener ear(static_cast<RepeatMarks>(marks));
    for (milliseconds t = 1000ms; t < 3000ms; t += 100ms) {
      ear.press(at(kSpace, t));
      ear.release(at(kSpace, t + 30ms));
      ear.run(t + 50ms);
    }
    QCOMPARE(ear.presses, 20);
    QCOMPARE(ear.releases, 20);
    QCOMPARE(ear.lost, 0);
    QVERIFY(!anyDown(ear.state));
  }

  void aReleaseIsImmediateWhereRepeatsCanBeToldApart() {
    for (const RepeatMarks marks : {RepeatMarks::PressesOnly, RepeatMarks::Flagged}) {
      KeyState state(marks);
      QVERIFY(state.press(at(kSpace, 100ms), 7).verdict == Press::Accepted);
      const auto result = state.release(at(kSpace, 130ms));
      QVERIFY(result.verdict == Release::Accepted);
      QCOMPARE(result.destination, 7);
      QVERIFY(!state.nextDue());
      QVERIFY(!isDown(state, kSpace));
    }
  }

  void aReleaseIsKeptBackFiveMillisecondsAndNoLonger() {
    KeyState state(RepeatMarks::Unreliable);
    QVERIFY(state.press(at(kSpace, 100ms), 7).verdict == Press::Accepted);
    QVERIFY(state.release(at(kSpace, 130ms)).verdict == Release::Deferred);
    QVERIFY(isDown(state, kSpace));
    QVERIFY(state.nextDue() == 135ms);
    QVERIFY(state.due(134ms).empty());
    const std::vector<HeldKey> released = state.due(135ms);
    QCOMPARE(released.size(), std::size_t{1});
    QVERIFY(released[0] == (HeldKey{kSpace, 7}));
    QVERIFY(!state.nextDue());
    QVERIFY(state.due(500ms).empty());
    QVERIFY(!isDown(state, kSpace));
  }

  void aSecondReleaseDoesNotProlongTheDeferral() {
    KeyState state(RepeatMarks::Unreliable);
    QVERIFY(state.press(at(kSpace, 100ms), 7).verdict == Press::Accepted);
    QVERIFY(state.release(at(kSpace, 130ms)).verdict == Release::Deferred);
    QVERIFY(state.release(at(kSpace, 134ms)).verdict == Release::Dropped);
    QCOMPARE(state.due(135ms).size(), std::size_t{1});
  }

  void unflaggedPairsOfAHeldKeyAreOnePressAndOneRelease() {
    Listener ear(RepeatMarks::Unreliable);
    ear.press(at(kSpace, 1000ms));
    for (milliseconds t = 1660ms; t < 4000ms; t += 40ms) {
      ear.run(t);
      ear.release(at(kSpace, t));
      ear.run(t + 2ms);
      ear.press(late(kSpace, t, t + 2ms));
    }
    QCOMPARE(ear.releases, 0);
    ear.release(at(kSpace, 4010ms));
    ear.run(4100ms);
    QCOMPARE(ear.presses, 1);
    QCOMPARE(ear.releases, 1);
  }

  void pairsWithoutTimesAreToldByTheirArrival() {
    Listener ear(RepeatMarks::Unreliable);
    const auto bare = [](milliseconds time) { return late(kSpace, 0ms, time); };
    ear.press(bare(1000ms));
    for (milliseconds t = 1660ms; t < 4000ms; t += 40ms) {
      ear.release(bare(t));
      ear.run(t + 4ms);
      ear.press(bare(t + 4ms));
    }
    QCOMPARE(ear.releases, 0);
    ear.release(bare(4010ms));
    ear.run(4015ms);
    ear.press(bare(4100ms));
    QCOMPARE(ear.presses, 2);
    QCOMPARE(ear.releases, 1);
  }

  void flaggedPairsAreDropped_data() { aTapOfThirtyMillisecondsIsOnePressAndOneRelease_data(); }
  void flaggedPairsAreDropped() {
    QFETCH(int, marks);
    Listener ear(static_cast<RepeatMarks>(marks));
    ear.press(at(kSpace, 1000ms));
    for (milliseconds t = 1660ms; t < 12000ms; t += 40ms) {
      QVERIFY(ear.state.release(at(kSpace, t, true)).verdict == Release::Dropped);
      ear.press(at(kSpace, t, true));
      ear.run(t + 20ms);
    }
    QCOMPARE(ear.releases, 0);
    ear.release(at(kSpace, 12010ms));
    ear.run(12100ms);
    QCOMPARE(ear.presses, 1);
    QCOMPARE(ear.releases, 1);
  }

  void flaggedPressesAloneAreRepeats() {
    Listener ear(RepeatMarks::Flagged);
    ear.press(at(kEnter, 1000ms));
    for (milliseconds t = 1500ms; t < 4000ms; t += 90ms) {
      ear.press(at(kEnter, t, true));
    }
    ear.release(at(kEnter, 4000ms));
    QCOMPARE(ear.presses, 1);
    QCOMPARE(ear.releases, 1);
  }

  void unflaggedPressesAloneAreRepeatsWithDetectableRepeat() {
    Listener ear(RepeatMarks::PressesOnly);
    ear.press(at(kEnter, 1000ms));
    for (milliseconds t = 1660ms; t < 12000ms; t += 40ms) {
      ear.press(at(kEnter, t));
    }
    ear.release(at(kEnter, 12000ms));
    QCOMPARE(ear.presses, 1);
    QCOMPARE(ear.releases, 1);
  }

  void aPairThatComesHalfFlaggedIsStillARepeat() {
    Listener ear(RepeatMarks::Unreliable);
    ear.press(at(kSpace, 1000ms));
    ear.release(at(kSpace, 1660ms));
    ear.press(at(kSpace, 1660ms, true));
    ear.run(1700ms);
    QCOMPARE(ear.releases, 0);
    ear.release(at(kSpace, 1700ms, true));
    ear.press(at(kSpace, 1700ms));
    ear.run(1800ms);
    ear.release(at(kSpace, 1810ms));
    ear.run(1820ms);
    QCOMPARE(ear.presses, 1);
    QCOMPARE(ear.releases, 1);
  }

  void aPressOfTheSameTimeReadLateIsNoNewPress() {
    // The program was busy between the two halves of a repeat: the release is out already.
    Listener ear(RepeatMarks::Unreliable);
    ear.press(at(kSpace, 1000ms));
    ear.release(late(kSpace, 1660ms, 1661ms));
    ear.run(1700ms);
    QCOMPARE(ear.releases, 1);
    ear.press(late(kSpace, 1660ms, 1701ms));
    for (milliseconds t = 1700ms; t < 2500ms; t += 40ms) {
      ear.release(late(kSpace, t, t + 10ms));
      ear.run(t + 12ms);
      ear.press(late(kSpace, t, t + 12ms));
      ear.release(late(kSpace, t + 20ms, t + 21ms));
      ear.run(t + 30ms);
      ear.press(late(kSpace, t + 20ms, t + 31ms));
    }
    ear.release(at(kSpace, 2600ms));
    ear.run(2700ms);
    QCOMPARE(ear.presses, 1);
    QCOMPARE(ear.releases, 1);
    ear.press(at(kSpace, 2800ms));
    QCOMPARE(ear.presses, 2);
  }

  void aKeptBackReleaseIsRealWhenTheNextPressHasALaterTime() {
    // Two taps that a busy program reads in one go.
    KeyState state(RepeatMarks::Unreliable);
    QVERIFY(state.press(late(kSpace, 1000ms, 1500ms), 1).verdict == Press::Accepted);
    QVERIFY(state.release(late(kSpace, 1100ms, 1500ms)).verdict == Release::Deferred);
    const auto second = state.press(late(kSpace, 1300ms, 1501ms), 2);
    QVERIFY(second.verdict == Press::Accepted);
    QVERIFY(second.released == (HeldKey{kSpace, 1}));
    QVERIFY(!second.lost);
    QVERIFY(state.due(1600ms).empty());
    QVERIFY(state.release(late(kSpace, 1400ms, 1700ms)).verdict == Release::Deferred);
    QVERIFY(state.due(1800ms) == (std::vector<HeldKey>{{kSpace, 2}}));
  }

  void aSwitchThatBouncesIsOnePress() {
    Listener ear(RepeatMarks::Unreliable);
    ear.press(at(kSpace, 1000ms));
    ear.release(at(kSpace, 1002ms));
    ear.press(at(kSpace, 1004ms));
    ear.release(at(kSpace, 1300ms));
    ear.press(at(kSpace, 1303ms));
    ear.release(at(kSpace, 1305ms));
    ear.run(1400ms);
    QCOMPARE(ear.presses, 1);
    QCOMPARE(ear.releases, 1);
  }

  void twoKeysHeldTogetherAreToldApart() {
    KeyState state(RepeatMarks::Unreliable);
    QVERIFY(state.press(at(kSpace, 1000ms), 1).verdict == Press::Accepted);
    QVERIFY(state.press(at(kEnter, 1010ms), 2).verdict == Press::Accepted);
    QVERIFY(state.release(at(kEnter, 1700ms)).verdict == Release::Deferred);
    QVERIFY(state.release(at(kSpace, 1701ms)).verdict == Release::Deferred);
    QVERIFY(state.press(at(kEnter, 1700ms), 3).verdict == Press::Repeat);
    QVERIFY(state.due(1710ms) == (std::vector<HeldKey>{{kSpace, 1}}));
    QVERIFY(isDown(state, kEnter));
    QVERIFY(!isDown(state, kSpace));
    QVERIFY(state.release(at(kEnter, 1800ms)).verdict == Release::Deferred);
    QVERIFY(state.due(1805ms) == (std::vector<HeldKey>{{kEnter, 2}}));
  }

  void releasesComeOutInTheOrderOfTheReleases() {
    KeyState state(RepeatMarks::Unreliable);
    QVERIFY(state.press(at(kSpace, 1000ms), 1).verdict == Press::Accepted);
    QVERIFY(state.press(at(kEnter, 1010ms), 2).verdict == Press::Accepted);
    QVERIFY(state.release(at(kEnter, 1100ms)).verdict == Release::Deferred);
    QVERIFY(state.release(at(kSpace, 1102ms)).verdict == Release::Deferred);
    QVERIFY(state.nextDue() == 1105ms);
    QVERIFY(state.due(1200ms) == (std::vector<HeldKey>{{kEnter, 2}, {kSpace, 1}}));
  }
};

const prova::Iscrizione<KeyStateTest, QCoreApplication> kIscritta;

}  // namespace key_state_test

#include "key_state_test.moc"
