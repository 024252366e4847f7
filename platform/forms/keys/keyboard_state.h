#pragma once

#include <QAbstractNativeEventFilter>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "platform/forms/keys/key_state.h"

namespace platform::inline forms {

// What the system knows of the keyboard: an X server, or Windows.

// How the repeats of a held key will show. Asks the server to send a release only when a key really
// goes up, where it can be asked.
[[nodiscard]] RepeatMarks askForRepeatMarks();

// What a key's scan code, as the toolkit tells it, counts as among the keys that are down: some
// systems tell a key from its twin on the number pad in the one and not in the other. 0 stays 0.
[[nodiscard]] std::uint32_t countedScanCode(std::uint32_t scanCode);

// The keys that are down at this moment, without the modifiers (Shift, Alt and their like), which
// do nothing by themselves; nothing where the server cannot be asked.
[[nodiscard]] std::optional<std::vector<KeyId>> keysDownNow();

// Tells the toolkit of releases that it was not told of, where it takes the next press of such a
// key for a repeat; null where it does not. It works once it is installed.
[[nodiscard]] std::unique_ptr<QAbstractNativeEventFilter> missedReleases();

}  // namespace platform::inline forms
