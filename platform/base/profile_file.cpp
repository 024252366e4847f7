#include "platform/base/profile_file.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "platform/base/profile_text.h"

namespace platform {

bool isProfileWritable(const QString& path) {
  const QFileInfo file(path);
  // Of a link, it is the file behind it that is written.
  const QFileInfo folder(file.exists() ? file.canonicalPath() : file.absolutePath());
  if (!folder.isDir() || !folder.isWritable()) return false;
  return !file.exists() || (file.isFile() && file.isWritable());
}

void writeProfileValue(const QString& path, const QString& section, const QString& key,
                       const QString& value) {
  QByteArray old;
  if (QFileInfo::exists(path)) {
    QFile file(path);
    // What cannot be read must not be replaced by a file with this one value.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return;
    old = file.readAll();
    if (file.error() != QFileDevice::NoError) return;
  }
  const auto text = ProfileText::withValue(old, section, key, value);
  if (!text || *text == old) return;
  // Brings the bytes to the disk before it takes the old file's place.
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return;
  // Only flush() tells of a disk that is full; commit() alone would put a cut file in place.
  if (file.write(*text) != text->size() || !file.flush()) file.cancelWriting();
  file.commit();
}

}  // namespace platform
