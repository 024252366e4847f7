#pragma once

#include <QString>

namespace platform::inline base {

// Whether writeProfileValue can do its work there: the file, or one that does not exist yet, can be
// written, and so can its folder, in which the new file is made.
[[nodiscard]] bool isProfileWritable(const QString& path);

// Replaces or adds one value as ProfileText::withValue tells, making the file where there is none.
// The new file takes the old one's place in one step, so that a crash leaves either of them whole.
// Where it cannot be written, nothing happens and nobody is told: all that is lost is a choice.
void writeProfileValue(const QString& path, const QString& section, const QString& key,
                       const QString& value);

}  // namespace platform::inline base
