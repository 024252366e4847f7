#include <QCoreApplication>
#include <QTest>
#include <algorithm>
#include <random>
#include <vector>

#include "key_listener.h"
#include "support/iscrizione.h"

namespace held_keys_test {

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

// Keys that are held while the keyboard goes elsewhere, releases that are lost, and every mixture.
class HeldKeysTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aReleaseWhosePressWentElsewhereIsDropped() {
    for (const RepeatMarks marks :
         {RepeatMarks::Unreliable, RepeatMarks::PressesOnly, RepeatMarks::Flagged}) {
      KeyState state(marks);
      QVERIFY(state.release(at(kSpace, 100ms)).verdict == Release::Dropped);
      QVERIFY(!anyDown(state));
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
    QVERIFY(!anyDown(ear.state));
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
      QVERIFY(!anyDown(state));
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
      QVERIFY(ear.state.anyHeldOver());
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
      QVERIFY(!ear.state.anyHeldOver());
      ear.press(at(kSpace, 902'200ms));
      QCOMPARE(ear.presses, 2);
      QCOMPARE(ear.lost, 0);
    }
  }

  void aNewSetOfKeysHeldOverReplacesTheOld() {
    KeyState state(RepeatMarks::PressesOnly);
    state.heldOver(std::array{kSpace}, 1000ms);
    state.heldOver(std::array{kEnter}, 1100ms);
    QVERIFY(KeyState(state).press(at(kSpace, 1150ms), 1).verdict == Press::Accepted);
    QVERIFY(KeyState(state).press(at(kEnter, 1150ms), 1).verdict == Press::Repeat);
    QVERIFY(state.letGoAll().empty());
    QVERIFY(!anyDown(state));
  }

  void ofTheKeysHeldOverThoseAloneStaySoThatAreStillDown() {
    KeyState state(RepeatMarks::PressesOnly);
    state.heldOver(std::array{kSpace}, 1000ms);
    // Enter has gone down since: its own press is on its way.
    state.stillHeldOver(std::array{kSpace, kEnter});
    QVERIFY(state.anyHeldOver());
    QVERIFY(state.isDown(kSpace) && !state.isDown(kEnter));
    state.stillHeldOver(std::array{kEnter});
    QVERIFY(!state.anyHeldOver());
    QVERIFY(!state.isDown(kSpace));
    QVERIFY(state.press(at(kEnter, 1100ms), 1).verdict == Press::Accepted);
    // A key that was pressed here is nobody's to let go.
    state.stillHeldOver({});
    QVERIFY(state.isDown(kEnter));
    QVERIFY(state.release(at(kEnter, 1200ms)).verdict == Release::Accepted);
  }

  void aKeyReleasedHereBeforeCanBeHeldOver() {
    KeyState state(RepeatMarks::Unreliable);
    QVERIFY(state.press(at(kSpace, 1000ms), 1).verdict == Press::Accepted);
    QVERIFY(state.release(at(kSpace, 1100ms)).verdict == Release::Deferred);
    QCOMPARE(state.due(1105ms).size(), std::size_t{1});
    state.heldOver(std::array{kSpace}, 1500ms);
    QVERIFY(state.anyHeldOver());
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
      QVERIFY(!anyDown(ear.state));
    }
  }
};

const prova::Iscrizione<HeldKeysTest, QCoreApplication> kIscritta;

}  // namespace held_keys_test

#include "held_keys_test.moc"
