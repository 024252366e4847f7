#pragma once

#include <QString>
#include <QStringList>

namespace platform::inline base {

// The names of the files in a folder that end with the suffix (".lng", matched without case),
// without hidden ones and folders, and without those whose bytes are no text to this system.
// Sorted by name without case; names that differ in case only, by their code points. Empty where
// there is no such folder.
[[nodiscard]] QStringList filesInFolder(const QString& folder, const QString& suffix);

}  // namespace platform::inline base
