#include "platform/forms/keys/key_state.h"

#include <QTest>
#include <algorithm>
#include <array>
#include <random>
#include <vector>

using namespace std::chrono_literals;
using platform::HeldKey;
using platform::KeyId;
using platform::KeyInput;
using platform::KeyState;
using platform::RepeatMarks;
using std::chrono::milliseconds;
using Press = KeyState::Press;
using Release = KeyState::Release;

namespace {

constexpr KeyId kSpace = KeyId::of(65, 0x20);
constexpr KeyId kEnter = KeyId::of(36, 0x01000004);

// An event that is read the moment it happens.
KeyInput at(KeyId id, milliseconds time, bool flagged = false) {
  return {.id = id, .flaggedRepeat = flagged, .stamp = time, .arrival = time};
}

// An event that a busy program reads later than it happened.
KeyInput late(KeyId id, milliseconds stamp, milliseconds arrival) {
  return {.id = id, .stamp = stamp, .arrival = arrival};
}

// Counts what comes out of a key state, as its caller delivers it.
struct Listener {
  explicit Listener(RepeatMarks marks) : state(marks) {}

  void run(milliseconds time) {
    for (auto next = state.nextDue(); next && *next <= time; next = state.nextDue()) {
      releases += static_cast<int>(state.due(*next).size());
    }
  }
  void press(const KeyInput& input) {
    const auto result = state.press(input, 1);
    presses += result.verdict == Press::Accepted ? 1 : 0;
    releases += result.released ? 1 : 0;
    lost += result.lost ? 1 : 0;
  }
  void release(const KeyInput& input) {
    releases += state.release(input).verdict == Release::Accepted ? 1 : 0;
  }

  KeyState state;
  int presses = 0;
  int releases = 0;
  int lost = 0;
};

}  // namespace

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
    QVERIFY(!ear.state.anyDown());
  }

  void aReleaseIsImmediateWhereRepeatsCanBeToldApart() {
    for (const RepeatMarks marks : {RepeatMarks::PressesOnly, RepeatMarks::Flagged}) {
      KeyState state(marks);
      QVERIFY(state.press(at(kSpace, 100ms), 7).verdict == Press::Accepted);
      const auto result = state.release(at(kSpace, 130ms));
      QVERIFY(result.verdict == Release::Accepted);
      QCOMPARE(result.destination, 7);
      QVERIFY(!state.nextDue());
      QVERIFY(!state.isDown(kSpace));
    }
  }

  void aReleaseIsKeptBackFiveMillisecondsAndNoLonger() {
    KeyState state(RepeatMarks::Unreliable);
    QVERIFY(state.press(at(kSpace, 100ms), 7).verdict == Press::Accepted);
    QVERIFY(state.release(at(kSpace, 130ms)).verdict == Release::Deferred);
    QVERIFY(state.isDown(kSpace));
    QVERIFY(state.nextDue() == 135ms);
    QVERIFY(state.due(134ms).empty());
    const std::vector<HeldKey> released = state.due(135ms);
    QCOMPARE(released.size(), std::size_t{1});
    QVERIFY(released[0] == (HeldKey{kSpace, 7}));
    QVERIFY(!state.nextDue());
    QVERIFY(state.due(500ms).empty());
    QVERIFY(!state.isDown(kSpace));
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
    QVERIFY(state.isDown(kEnter));
    QVERIFY(!state.isDown(kSpace));
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

  void aReleaseWhosePressWentElsewhereIsDropped() {
    for (const RepeatMarks marks :
         {RepeatMarks::Unreliable, RepeatMarks::PressesOnly, RepeatMarks::Flagged}) {
      KeyState state(marks);
      QVERIFY(state.release(at(kSpace, 100ms)).verdict == Release::Dropped);
      QVERIFY(!state.anyDown());
      QVERIFY(!state.nextDue());
      QVERIFY(state.press(at(kSpace, 200ms), 1).verdict == Press::Accepted);
    }
  }

  void theRepeatsOfAKeyPressedInAnotherWindowAreNotAPress() {
    Listener ear(RepeatMarks::Unreliable);
    for (milliseconds t = 1000ms; t < 2000ms; t += 40ms) {
      ear.run(t);
      ear.release(at(kSpace, t));
      ear.press(late(kSpace, t, t + 3ms));
    }
    ear.release(at(kSpace, 2010ms));
    ear.run(2100ms);
    QCOMPARE(ear.presses, 0);
    QCOMPARE(ear.releases, 0);
    QVERIFY(!ear.state.anyDown());
    ear.press(at(kSpace, 2200ms));
    QCOMPARE(ear.presses, 1);
  }

  void aFlaggedPressOfAKeyPressedInAnotherWindowIsNotAPress() {
    for (const RepeatMarks marks : {RepeatMarks::Unreliable, RepeatMarks::Flagged}) {
      KeyState state(marks);
      QVERIFY(state.press(at(kSpace, 100ms, true), 1).verdict == Press::Repeat);
      QVERIFY(state.release(at(kSpace, 140ms)).verdict == Release::Dropped);
    }
  }

  void losingTheFocusLetsEveryKeyGoWithoutItsRelease() {
    for (const RepeatMarks marks :
         {RepeatMarks::Unreliable, RepeatMarks::PressesOnly, RepeatMarks::Flagged}) {
      KeyState state(marks);
      QVERIFY(state.press(at(kSpace, 1000ms), 1).verdict == Press::Accepted);
      QVERIFY(state.press(at(kEnter, 1010ms), 2).verdict == Press::Accepted);
      QVERIFY(state.letGoAll() == (std::vector<HeldKey>{{kSpace, 1}, {kEnter, 2}}));
      QVERIFY(!state.anyDown());
      QVERIFY(state.release(at(kSpace, 1200ms)).verdict == Release::Dropped);
      QVERIFY(state.due(2000ms).empty());
      QVERIFY(state.press(at(kSpace, 3000ms), 3).verdict == Press::Accepted);
    }
  }

  void aReleaseKeptBackWhenTheFocusGoesHasNoEffect() {
    KeyState state(RepeatMarks::Unreliable);
    QVERIFY(state.press(at(kSpace, 1000ms), 1).verdict == Press::Accepted);
    QVERIFY(state.release(at(kSpace, 1100ms)).verdict == Release::Deferred);
    QVERIFY(state.letGoAll() == (std::vector<HeldKey>{{kSpace, 1}}));
    QVERIFY(!state.nextDue());
    QVERIFY(state.due(2000ms).empty());
  }

  void aKeyReleasedBeforeIsNotLetGoAgain() {
    KeyState state(RepeatMarks::Unreliable);
    QVERIFY(state.press(at(kSpace, 1000ms), 1).verdict == Press::Accepted);
    QVERIFY(state.release(at(kSpace, 1100ms)).verdict == Release::Deferred);
    QCOMPARE(state.due(1105ms).size(), std::size_t{1});
    QVERIFY(state.letGoAll().empty());
  }

  void aKeyHeldOverIsIgnoredUntilItHasBeenReleased() {
    for (const RepeatMarks marks : {RepeatMarks::Unreliable, RepeatMarks::PressesOnly}) {
      Listener ear(marks);
      ear.state.heldOver(std::array{kSpace}, 900'000ms);
      QVERIFY(ear.state.isDown(kSpace));
      for (milliseconds t = 900'600ms; t < 902'000ms; t += 40ms) {
        if (marks == RepeatMarks::Unreliable) {
          ear.release(at(kSpace, t));
        }
        ear.press(at(kSpace, t));
        ear.run(t + 20ms);
      }
      ear.press(at(kEnter, 902'000ms));  // other keys work meanwhile
      QCOMPARE(ear.presses, 1);
      ear.release(at(kSpace, 902'010ms));
      ear.run(902'100ms);
      QCOMPARE(ear.releases, 0);
      QVERIFY(!ear.state.isDown(kSpace));
      ear.press(at(kSpace, 902'200ms));
      QCOMPARE(ear.presses, 2);
      QCOMPARE(ear.lost, 0);
    }
  }

  void aNewSetOfKeysHeldOverReplacesTheOld() {
    KeyState state(RepeatMarks::PressesOnly);
    state.heldOver(std::array{kSpace}, 1000ms);
    state.heldOver(std::array{kEnter}, 1100ms);
    QVERIFY(!state.isDown(kSpace));
    QVERIFY(state.isDown(kEnter));
    QVERIFY(state.letGoAll().empty());
    QVERIFY(!state.anyDown());
  }

  void aKeyReleasedHereBeforeCanBeHeldOver() {
    KeyState state(RepeatMarks::Unreliable);
    QVERIFY(state.press(at(kSpace, 1000ms), 1).verdict == Press::Accepted);
    QVERIFY(state.release(at(kSpace, 1100ms)).verdict == Release::Deferred);
    QCOMPARE(state.due(1105ms).size(), std::size_t{1});
    state.heldOver(std::array{kSpace}, 1500ms);
    QVERIFY(state.isDown(kSpace));
    QVERIFY(state.press(at(kSpace, 1600ms), 2).verdict == Press::Repeat);
  }

  void aKeyPressedHereIsNotHeldOver() {
    KeyState state(RepeatMarks::PressesOnly);
    QVERIFY(state.press(at(kSpace, 1000ms), 4).verdict == Press::Accepted);
    state.heldOver(std::array{kSpace}, 1000ms);
    const auto result = state.release(at(kSpace, 1100ms));
    QVERIFY(result.verdict == Release::Accepted);
    QCOMPARE(result.destination, 4);
  }

  void aLostReleaseCostsAtMostOnePress() {
    for (const RepeatMarks marks : {RepeatMarks::Unreliable, RepeatMarks::PressesOnly}) {
      Listener ear(marks);
      ear.press(at(kSpace, 1000ms));
      ear.press(at(kSpace, 3000ms));  // cannot be told from a repeat
      QCOMPARE(ear.presses, 1);
      ear.release(at(kSpace, 3100ms));
      ear.run(3200ms);
      QCOMPARE(ear.releases, 1);
      ear.press(at(kSpace, 3300ms));
      QCOMPARE(ear.presses, 2);
    }
  }

  void aPressLongAfterALostReleaseIsANewPress() {
    for (const RepeatMarks marks : {RepeatMarks::Unreliable, RepeatMarks::PressesOnly}) {
      KeyState state(marks);
      QVERIFY(state.press(at(kSpace, 1000ms), 1).verdict == Press::Accepted);
      QVERIFY(state.press(at(kSpace, 6999ms), 2).verdict == Press::Repeat);
      const auto result = state.press(at(kSpace, 12999ms), 3);
      QVERIFY(result.verdict == Press::Accepted);
      QVERIFY(result.lost == (HeldKey{kSpace, 1}));
      QVERIFY(!result.released);
      QVERIFY(state.letGoAll() == (std::vector<HeldKey>{{kSpace, 3}}));
    }
  }

  void anUnflaggedPressIsANewOneWhereFlagsTellTheTruth() {
    KeyState state(RepeatMarks::Flagged);
    QVERIFY(state.press(at(kSpace, 1000ms), 1).verdict == Press::Accepted);
    const auto result = state.press(at(kSpace, 1500ms), 2);
    QVERIFY(result.verdict == Press::Accepted);
    QVERIFY(result.lost == (HeldKey{kSpace, 1}));
    QCOMPARE(state.release(at(kSpace, 1600ms)).destination, 2);
  }

  void aProgramBusyForSecondsDoesNotTakeARepeatForANewPress() {
    KeyState state(RepeatMarks::PressesOnly);
    QVERIFY(state.press(late(kSpace, 1000ms, 1000ms), 1).verdict == Press::Accepted);
    QVERIFY(state.press(late(kSpace, 1660ms, 9000ms), 1).verdict == Press::Repeat);
    QVERIFY(state.press(late(kSpace, 1700ms, 19000ms), 1).verdict == Press::Repeat);
  }

  // Any mixture of what a plain X server and the toolkit make of holds of two keys, read with any
  // delay that keeps the order: each hold is one press and one release.
  void everyHoldIsOnePressAndOneReleaseWhateverTheDesktopMakesOfIt() {
    std::mt19937 engine(20071013);
    const auto draw = [&](int from, int to) {
      return std::uniform_int_distribution<int>(from, to)(engine);
    };
    struct Event {
      KeyInput input;
      bool down;
    };
    for (int round = 0; round < 500; ++round) {
      std::vector<Event> events;
      int holds = 0;
      for (const KeyId id : {kSpace, kEnter}) {
        milliseconds t = 1000ms + milliseconds(draw(0, 300));
        for (int hold = draw(1, 5); hold > 0; --hold, ++holds) {
          events.push_back({at(id, t), true});
          const milliseconds end =
              t + milliseconds(draw(0, 1) == 0 ? draw(6, 200) : draw(600, 3000));
          for (milliseconds r = t + 300ms; r < end; r += 33ms) {
            const bool flagged = draw(0, 1) == 0;
            events.push_back({at(id, r, flagged), false});
            events.push_back({at(id, r, flagged), true});
          }
          events.push_back({at(id, end), false});
          t = end + milliseconds(draw(6, 400));
        }
      }
      std::ranges::stable_sort(events, {}, [](const Event& e) { return e.input.stamp; });
      Listener ear(RepeatMarks::Unreliable);
      milliseconds now = 0ms;
      for (Event& event : events) {
        now = std::max(now, event.input.stamp) + milliseconds(draw(0, 9) == 0 ? draw(0, 120) : 0);
        ear.run(now);
        event.input.arrival = now;
        event.down ? ear.press(event.input) : ear.release(event.input);
      }
      ear.run(now + 100ms);
      QCOMPARE(ear.presses, holds);
      QCOMPARE(ear.releases, holds);
      QCOMPARE(ear.lost, 0);
      QVERIFY(!ear.state.anyDown());
    }
  }
};

QTEST_GUILESS_MAIN(KeyStateTest)
#include "key_state_test.moc"
