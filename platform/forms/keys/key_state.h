#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <vector>

namespace platform {

// A key of the keyboard: its scan code, or its key code where the system tells none.
using KeyId = std::uint32_t;

// Makes one press and one release of one hold of a key, whatever the desktop does to a key that is
// held: pairs of release and press that are flagged as repeats or not, presses alone, or a repeat
// that the server tells apart. It knows no window and no focus; whoever feeds it says which event
// came and asks what to do with it.
//
// Where repeats cannot be told apart, a release is held back for a moment, since the press that
// makes a repeat of it may still be on its way from the display server.
class KeyState {
 public:
  // How long a release is held back where it must be, in milliseconds.
  static constexpr std::int64_t kDeferral = 5;

  // Whether the display server sends a release only when the key really goes up.
  void setDetectable(bool detectable) { detectable_ = detectable; }
  [[nodiscard]] bool isDetectable() const { return detectable_; }

  enum class Press { Accepted, Repeat };
  // flagged: the toolkit calls the event a repeat. destination: who gets the press, for the caller
  // to compare when the release comes.
  Press press(KeyId key, bool flagged, int destination);

  enum class Outcome { Accepted, Deferred, Dropped };
  struct Release {
    Outcome outcome = Outcome::Dropped;
    int destination = 0;  // of the press, for an accepted release
  };
  // now: milliseconds of any clock that does not run backwards.
  Release release(KeyId key, bool flagged, std::int64_t now);

  struct Due {
    KeyId key;
    int destination;
  };
  // The held-back releases whose time has come: they were real.
  std::vector<Due> due(std::int64_t now);
  // When the next held-back release comes due.
  [[nodiscard]] std::optional<std::int64_t> nextDue() const;

  // The keyboard has gone elsewhere: every key that is down is let go without effect. Returns them.
  std::vector<KeyId> letGoAll();
  // Keys that are down and whose press was meant for something else: they do nothing until they
  // have been let go.
  void ignoreUntilReleased(const std::vector<KeyId>& keys);
  // Of the ignored keys, only those that are really down stay ignored.
  void keepIgnored(const std::vector<KeyId>& keysDown);
  [[nodiscard]] bool anyIgnored() const { return !ignored_.empty(); }
  // The press of a key that is down turned out to be meant for something else.
  void redirect(KeyId key, int destination);
  [[nodiscard]] std::vector<KeyId> keysDown() const;

 private:
  struct Held {
    KeyId key;
    int destination;
    std::optional<std::int64_t> releasedAt;  // held back since then
  };
  std::vector<Held>::iterator find(KeyId key);

  std::vector<Held> down_;
  std::set<KeyId> ignored_;
  bool detectable_ = false;
};

}  // namespace platform
