#pragma once

#include <QByteArray>
#include <optional>

namespace platform::inline forms {

// The settings that a desktop hands to programs under X, as a block of bytes in its settings
// manager's property: a byte for the order of bytes, three of none, a serial number, a count, and
// each setting with its kind, its name and its value.

// A whole number by its name. None where the block does not have it as a number, or breaks off or
// contradicts itself before it.
[[nodiscard]] std::optional<int> numberIn(const QByteArray& settings, const QByteArray& name);

// The block that stands on the desktop now; empty without an X server or a settings manager.
[[nodiscard]] QByteArray desktopSettings();

}  // namespace platform::inline forms
