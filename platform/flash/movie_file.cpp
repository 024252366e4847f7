#include "platform/flash/movie_file.h"

#include <QFile>
#include <QFileInfo>
#include <utility>

#include "platform/flash/limits.h"
#include "platform/flash/movie_reader.h"

namespace platform::flash {

std::shared_ptr<const Movie> loadMovie(const QString& path, Budget::Clock clock) {
  // A pipe or a device could keep the reader waiting for ever.
  if (!QFileInfo(path).isFile()) {
    throw MovieError("there is no such file", 0);
  }
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    throw MovieError("the file cannot be opened", 0);
  }
  const QByteArray bytes = file.read(limits::kFileBytes);
  return readMovie({reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                    static_cast<std::size_t>(bytes.size())},
                   std::move(clock));
}

}  // namespace platform::flash
