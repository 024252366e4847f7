#include "platform/base/profile_reader.h"

#include <sys/stat.h>

#include <QFile>
#include <algorithm>
#include <chrono>

#include "platform/base/run_time_error.h"

namespace platform {

namespace {

// Longer than the clock of any usual file system takes for a step.
constexpr std::chrono::nanoseconds freshness = std::chrono::milliseconds(100);

std::int64_t nanoseconds(const timespec& time) {
  return time.tv_sec * std::int64_t{1'000'000'000} + time.tv_nsec;
}

// A time in the future, left by a clock that was set back, is not fresh: it would stay so.
bool hasJustChanged(std::int64_t changed) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  const auto age = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count() - changed;
  return age >= 0 && age < freshness.count();
}

}  // namespace

ProfileReader::Stamp ProfileReader::stampOf(const QString& path) {
  struct stat status {};
  const bool isFile =
      ::stat(QFile::encodeName(path).constData(), &status) == 0 && S_ISREG(status.st_mode);
  if (!isFile) throw RunTimeError(RunTimeError::FileNotFound);
  return {.device = status.st_dev,
          .inode = status.st_ino,
          .size = status.st_size,
          .modified = nanoseconds(status.st_mtim),
          .changed = nanoseconds(status.st_ctim)};
}

ProfileReader::Remembered ProfileReader::load(const QString& path, const Stamp& stamp) {
  Remembered loaded{.path = path,
                    .stamp = stamp,
                    .isFresh = hasJustChanged(stamp.changed),
                    .content = ProfileText()};
  auto file = std::make_unique<QFile>(path);
  if (!file->open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return loaded;
  if (stamp.size > smallFile) {
    loaded.content = std::make_unique<ProfileLines>(std::move(file));
  } else {
    loaded.content = ProfileText(file->read(smallFile));
  }
  return loaded;
}

void ProfileReader::bringToFront(const QString& path) {
  const auto found = std::find_if(remembered_.begin(), remembered_.end(),
                                  [&](const Remembered& file) { return file.path == path; });
  Stamp stamp;
  try {
    stamp = stampOf(path);
  } catch (const RunTimeError&) {
    if (found != remembered_.end()) remembered_.erase(found);
    throw;
  }
  if (found != remembered_.end() && found->stamp == stamp && !found->isFresh) {
    std::rotate(remembered_.begin(), found, found + 1);
    return;
  }
  if (found != remembered_.end()) remembered_.erase(found);
  remembered_.push_front(load(path, stamp));
  if (remembered_.size() > mostRemembered) remembered_.pop_back();
}

QString ProfileReader::read(const QString& path, const QString& section, const QString& key) {
  bringToFront(path);
  auto& content = remembered_.front().content;
  if (const auto* text = std::get_if<ProfileText>(&content)) return text->value(section, key);
  return std::get<std::unique_ptr<ProfileLines>>(content)->value(key);
}

}  // namespace platform
