#include "platform/forms/keys/key_state.h"

#include <algorithm>

namespace platform {

std::vector<KeyState::Held>::iterator KeyState::find(KeyId key) {
  return std::find_if(down_.begin(), down_.end(),
                      [key](const Held& held) { return held.key == key; });
}

KeyState::Press KeyState::press(KeyId key, bool flagged, int destination) {
  if (ignored_.contains(key)) return Press::Repeat;
  const auto held = find(key);
  if (held != down_.end()) {
    held->releasedAt.reset();
    return Press::Repeat;
  }
  if (flagged) return Press::Repeat;
  down_.push_back({key, destination, std::nullopt});
  return Press::Accepted;
}

KeyState::Release KeyState::release(KeyId key, bool flagged, std::int64_t now) {
  if (flagged) return {};
  if (ignored_.erase(key) > 0) return {};
  const auto held = find(key);
  if (held == down_.end()) return {};
  if (!detectable_) {
    held->releasedAt = now;
    return {Outcome::Deferred, 0};
  }
  const int destination = held->destination;
  down_.erase(held);
  return {Outcome::Accepted, destination};
}

std::vector<KeyState::Due> KeyState::due(std::int64_t now) {
  std::vector<Due> result;
  for (const Held& held : down_) {
    if (held.releasedAt && *held.releasedAt + kDeferral <= now) {
      result.push_back({held.key, held.destination});
    }
  }
  std::erase_if(down_, [now](const Held& held) {
    return held.releasedAt && *held.releasedAt + kDeferral <= now;
  });
  return result;
}

std::optional<std::int64_t> KeyState::nextDue() const {
  std::optional<std::int64_t> next;
  for (const Held& held : down_) {
    if (!held.releasedAt) continue;
    const std::int64_t at = *held.releasedAt + kDeferral;
    next = next ? std::min(*next, at) : at;
  }
  return next;
}

std::vector<KeyId> KeyState::letGoAll() {
  std::vector<KeyId> keys = keysDown();
  down_.clear();
  return keys;
}

void KeyState::ignoreUntilReleased(const std::vector<KeyId>& keys) {
  for (const KeyId key : keys) {
    std::erase_if(down_, [key](const Held& held) { return held.key == key; });
    ignored_.insert(key);
  }
}

void KeyState::keepIgnored(const std::vector<KeyId>& keysDown) {
  std::erase_if(ignored_, [&keysDown](KeyId key) {
    return std::find(keysDown.begin(), keysDown.end(), key) == keysDown.end();
  });
}

void KeyState::redirect(KeyId key, int destination) {
  const auto held = find(key);
  if (held != down_.end()) held->destination = destination;
}

std::vector<KeyId> KeyState::keysDown() const {
  std::vector<KeyId> keys;
  for (const Held& held : down_) keys.push_back(held.key);
  return keys;
}

}  // namespace platform
