#pragma once

#include <QString>
#include <QStringList>

namespace platform {

// The names of the files in a folder that end with the suffix (".lng", matched with case, since the
// name is put together again from its stem and the suffix), without hidden ones and folders.
// Sorted by name without case; names that differ in case only, by their code points. Empty where
// there is no such folder.
[[nodiscard]] QStringList filesInFolder(const QString& folder, const QString& suffix);

}  // namespace platform
