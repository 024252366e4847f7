#include "platform/base/profile_file.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "platform/base/profile_text.h"
#include "platform/base/system_files.h"

namespace platform::inline base {

namespace {

bool replace(const QString& path, const QByteArray& text) {
  // Brings the bytes to the disk before it takes the old file's place.
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  // Only flush() tells of a disk that is full; commit() alone would put a cut file in place.
  if (file.write(text) != text.size() || !file.flush()) file.cancelWriting();
  return file.commit();
}

}  // namespace

bool isProfileWritable(const QString& path) {
  const QFileInfo file(path);
  // Of a link, it is the file behind it that is written.
  const QFileInfo folder(file.exists() ? file.canonicalPath() : file.absolutePath());
  if (!folder.isDir() || !mayWrite(folder.filePath())) return false;
  return !file.exists() || (file.isFile() && mayWrite(file.filePath()));
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
  for (int tried = 1; !replace(path, *text) && isWorthAnotherTry(tried); ++tried) {
  }
}

}  // namespace platform::inline base
