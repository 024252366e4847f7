#include "platform/forms/keys/key_state.h"

#include <algorithm>

namespace platform::inline forms {

namespace {

// By the desktop's clock where both events have it: what a busy program reads late is then still
// known for what it is.
std::chrono::milliseconds distance(const KeyInput& earlier, const KeyInput& later) {
  const bool stamped = earlier.stamp.count() != 0 && later.stamp.count() != 0;
  return stamped ? later.stamp - earlier.stamp : later.arrival - earlier.arrival;
}

}  // namespace

KeyState::Entry* KeyState::find(KeyId id) {
  const auto found =
      std::ranges::find_if(entries_, [&](const Entry& entry) { return entry.key.id == id; });
  return found == entries_.end() ? nullptr : &*found;
}

void KeyState::remove(KeyId id) {
  std::erase_if(entries_, [&](const Entry& entry) { return entry.key.id == id; });
}

// Whether a press is the second half of the repeat that the release began.
bool KeyState::belongsTo(const KeyInput& press, const KeyInput& release) const {
  return marks_ == RepeatMarks::Unreliable && distance(release, press) <= kDeferral;
}

KeyState::PressResult KeyState::press(const KeyInput& input, int destination) {
  if (Entry* entry = find(input.id)) {
    return pressOfKnown(*entry, input, destination);
  }
  if (input.flaggedRepeat) {
    return {};  // of a key that went down in another window
  }
  entries_.push_back({.key = {input.id, destination}, .lastPress = input, .lastRelease = input});
  return {.verdict = Press::Accepted};
}

KeyState::PressResult KeyState::repeatOf(const Entry& entry) {
  PressResult result{.verdict = Press::Repeat};
  if (!entry.muted) result.destination = entry.key.destination;
  return result;
}

KeyState::PressResult KeyState::pressOfKnown(Entry& entry, const KeyInput& input, int destination) {
  const bool released = entry.gone || entry.releasing;
  if (input.flaggedRepeat || (released && belongsTo(input, entry.lastRelease))) {
    // The key has been down all the time. Where its release has been delivered already, the rest
    // of the hold is nobody's.
    entry.muted = entry.muted || entry.gone;
    entry.gone = false;
    entry.releasing = false;
    entry.lastPress = input;
    return repeatOf(entry);
  }
  PressResult result{.verdict = Press::Accepted};
  if (entry.releasing) {
    if (!entry.muted) {
      result.released = entry.key;
    }
  } else if (!entry.gone && marks_ != RepeatMarks::Flagged &&
             distance(entry.lastPress, input) < kLost) {
    entry.lastPress = input;
    return repeatOf(entry);
  } else if (!entry.gone && !entry.muted) {
    result.lost = entry.key;
  }
  remove(input.id);
  entries_.push_back({.key = {input.id, destination}, .lastPress = input, .lastRelease = input});
  return result;
}

KeyState::ReleaseResult KeyState::release(const KeyInput& input) {
  Entry* entry = find(input.id);
  if (entry == nullptr || entry->gone || entry->releasing) {
    noteStray(entry, input);
    return {};
  }
  if (input.flaggedRepeat) {
    entry->lastPress = input;
    return {};
  }
  if (marks_ == RepeatMarks::Unreliable) {
    entry->releasing = true;
    entry->lastRelease = input;
    return {.verdict = entry->muted ? Release::Dropped : Release::Deferred};
  }
  const ReleaseResult result = entry->muted ? ReleaseResult{}
                                            : ReleaseResult{.verdict = Release::Accepted,
                                                            .destination = entry->key.destination};
  remove(input.id);
  return result;
}

// A release that ends nothing can still be the first half of a repeat: of a key that went down in
// another window.
void KeyState::noteStray(Entry* entry, const KeyInput& input) {
  const bool keptBack = entry != nullptr && entry->releasing;
  if (marks_ != RepeatMarks::Unreliable || input.stamp.count() == 0 || keptBack) {
    return;
  }
  if (entry == nullptr) {
    entries_.push_back(
        {.key = {input.id, 0}, .gone = true, .lastPress = input, .lastRelease = input});
    entry = &entries_.back();
  }
  entry->lastRelease = input;
}

std::optional<std::chrono::milliseconds> KeyState::nextDue() const {
  std::optional<std::chrono::milliseconds> first;
  for (const Entry& entry : entries_) {
    if (entry.releasing) {
      const auto moment = entry.lastRelease.arrival + kDeferral;
      first = first ? std::min(*first, moment) : moment;
    }
  }
  return first;
}

std::vector<HeldKey> KeyState::due(std::chrono::milliseconds time) {
  std::vector<Entry*> ended;
  for (Entry& entry : entries_) {
    if (entry.releasing && time - entry.lastRelease.arrival >= kDeferral) {
      entry.releasing = false;
      entry.gone = true;
      ended.push_back(&entry);
    }
  }
  std::ranges::stable_sort(ended, {}, [](const Entry* e) { return e->lastRelease.arrival; });
  std::vector<HeldKey> released;
  for (const Entry* entry : ended) {
    if (!entry->muted) {
      released.push_back(entry->key);
    }
  }
  // Without the desktop's time a late repeat cannot be told from a new press.
  std::erase_if(entries_, [](const Entry& entry) {
    return entry.gone && entry.lastRelease.stamp.count() == 0;
  });
  return released;
}

std::vector<HeldKey> KeyState::letGoAll() {
  std::vector<HeldKey> keys;
  for (const Entry& entry : entries_) {
    if (!entry.muted && !entry.gone) {
      keys.push_back(entry.key);
    }
  }
  entries_.clear();
  return keys;
}

void KeyState::heldOver(std::span<const KeyId> ids, std::chrono::milliseconds arrival) {
  std::erase_if(entries_, [](const Entry& entry) { return entry.muted || entry.gone; });
  for (const KeyId id : ids) {
    if (find(id) == nullptr) {
      const KeyInput unknown{.id = id, .arrival = arrival};
      entries_.push_back(
          {.key = {id, 0}, .muted = true, .lastPress = unknown, .lastRelease = unknown});
    }
  }
}

void KeyState::stillHeldOver(std::span<const KeyId> ids) {
  std::erase_if(entries_, [&](const Entry& entry) {
    return entry.muted && !entry.gone && std::ranges::find(ids, entry.key.id) == ids.end();
  });
}

bool KeyState::isDown(KeyId id) const {
  return std::ranges::any_of(
      entries_, [id](const Entry& entry) { return entry.key.id == id && !entry.gone; });
}

bool KeyState::anyHeldOver() const {
  return std::ranges::any_of(entries_,
                             [](const Entry& entry) { return entry.muted && !entry.gone; });
}

}  // namespace platform::inline forms
