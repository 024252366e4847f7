#pragma once

#include <QFile>
#include <QString>

namespace platform::inline devices {

// What a file needs to appear whole or not at all, in the way of the system at hand.

// Brings what has been written to the disk. file: open. False where the disk did not take it.
[[nodiscard]] bool bringToDisk(QFile& file);

enum class Naming { Done, Taken, Failed };
// Gives a closed file the name `whole`, in its own folder, in one step of the system that neither
// replaces what has the name already nor follows a link: what was looked at before may be another
// by now.
[[nodiscard]] Naming giveName(const QString& part, const QString& whole);

}  // namespace platform::inline devices
