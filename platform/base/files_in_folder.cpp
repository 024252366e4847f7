#include "platform/base/files_in_folder.h"

#include <QDir>
#include <algorithm>

namespace platform::inline base {

QStringList filesInFolder(const QString& folder, const QString& suffix) {
  QStringList names = QDir(folder).entryList(QDir::Files, QDir::Unsorted);
  names.removeIf([&](const QString& name) { return !name.endsWith(suffix, Qt::CaseInsensitive); });
  std::sort(names.begin(), names.end(), [](const QString& left, const QString& right) {
    const int order = left.compare(right, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : left < right;
  });
  return names;
}

}  // namespace platform::inline base
