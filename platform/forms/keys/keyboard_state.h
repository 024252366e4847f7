#pragma once

#include <optional>
#include <vector>

#include "platform/forms/keys/key_state.h"

namespace platform::inline forms {

// What the system knows of the keyboard: an X server, or Windows.

// How the repeats of a held key will show. Asks the server to send a release only when a key really
// goes up, where it can be asked.
[[nodiscard]] RepeatMarks askForRepeatMarks();

// The keys that are down at this moment, without the modifiers (Shift, Alt and their like), which
// do nothing by themselves; nothing where the server cannot be asked.
[[nodiscard]] std::optional<std::vector<KeyId>> keysDownNow();

}  // namespace platform::inline forms
