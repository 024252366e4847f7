#pragma once

#include <chrono>
#include <optional>
#include <span>
#include <vector>

#include "platform/forms/keys/key_input.h"

namespace platform::inline forms {

// A key that is down, with a number of the caller's choice that says who got its press.
struct HeldKey {
  KeyId id;
  int destination = 0;

  bool operator==(const HeldKey&) const = default;
};

// Makes one press and one release of one hold of a key, whatever the desktop reports in between.
// Keeps no time of its own and touches no event: the caller hands events in, asks for due releases
// when nextDue() says so, and delivers what comes out.
class KeyState {
 public:
  // The longest that a release is kept back: the press that would show it to be a repeat is sent
  // with it and arrives well within this (2 ms were enough under load).
  static constexpr std::chrono::milliseconds kDeferral{5};
  // A press of a key that is down, this long after its last event, is no repeat: desktops let the
  // first repeat be set to up to 5 s. Its release was lost on the way.
  static constexpr std::chrono::milliseconds kLost{6000};

  enum class Press { Accepted, Repeat };
  struct PressResult {
    Press verdict = Press::Repeat;
    // With Repeat: who got the press, or nothing where nobody is to hear of the hold.
    std::optional<int> destination;
    // A release that was kept back and that this press shows to be real: deliver it before the
    // press. Only with Accepted.
    std::optional<HeldKey> released;
    // An earlier press of the same key whose release never came: taken as let go, without effect.
    // Only with Accepted.
    std::optional<HeldKey> lost;
  };

  enum class Release {
    Accepted,
    // Kept back; comes out of due() unless a press shows that it was a repeat.
    Deferred,
    // A repeat, or of a key whose press did not come here.
    Dropped,
  };
  struct ReleaseResult {
    Release verdict = Release::Dropped;
    int destination = 0;  // of the press; 0 unless Accepted
  };

  explicit KeyState(RepeatMarks marks) : marks_(marks) {}

  [[nodiscard]] PressResult press(const KeyInput& input, int destination);
  [[nodiscard]] ReleaseResult release(const KeyInput& input);

  // The moment at which the first release that is kept back becomes real.
  [[nodiscard]] std::optional<std::chrono::milliseconds> nextDue() const;
  // The releases that have become real by then, in the order in which they came.
  [[nodiscard]] std::vector<HeldKey> due(std::chrono::milliseconds time);

  // The window has lost the focus: every key that is down is taken as let go without its effect,
  // also one whose release is kept back. The keys, in the order of their presses.
  std::vector<HeldKey> letGoAll();

  // Keys that are down though their press did not come here (the window has just got the focus):
  // nothing is heard of them until they have been let go. Replaces an earlier set; a key whose
  // press did come here stays as it is. arrival: now, by the clock of KeyInput's arrival.
  void heldOver(std::span<const KeyId> ids, std::chrono::milliseconds arrival);

  // Of the keys that were held over those alone stay so that are among ids: the others have been
  // let go without a word.
  void stillHeldOver(std::span<const KeyId> ids);
  // Whether a key is down as far as is known, wherever it was pressed.
  [[nodiscard]] bool isDown(KeyId id) const;
  // Whether a key that was held over is still down.
  [[nodiscard]] bool anyHeldOver() const;

 private:
  struct Entry {
    HeldKey key;
    bool muted = false;      // nobody hears of it: held over, or found down by a late repeat
    bool releasing = false;  // its release is kept back
    bool gone = false;       // up, as far as anybody knows; remembered for a late repeat alone
    KeyInput lastPress;
    KeyInput lastRelease;
  };

  Entry* find(KeyId id);
  void remove(KeyId id);
  [[nodiscard]] PressResult pressOfKnown(Entry& entry, const KeyInput& input, int destination);
  [[nodiscard]] static PressResult repeatOf(const Entry& entry);
  void noteStray(Entry* entry, const KeyInput& input);
  [[nodiscard]] bool belongsTo(const KeyInput& press, const KeyInput& release) const;

  RepeatMarks marks_;
  std::vector<Entry> entries_;  // in the order of the presses
};

}  // namespace platform::inline forms
