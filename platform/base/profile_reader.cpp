#include "platform/base/profile_reader.h"

#include <algorithm>
#include <chrono>
#include <optional>

#include "platform/base/run_time_error.h"

namespace platform::inline base {

namespace {

// Longer than the clock of any usual file system takes for a step.
constexpr std::chrono::nanoseconds kFreshness = std::chrono::milliseconds(100);

// A time in the future, left by a clock that was set back, is not fresh: it would stay so.
bool hasJustChanged(std::int64_t changed) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  const auto age = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count() - changed;
  return age >= 0 && age < kFreshness.count();
}

}  // namespace

ProfileReader::Remembered ProfileReader::load(const QString& path, const FileStamp& stamp) {
  Remembered loaded{.path = path,
                    .stamp = stamp,
                    .isUnsure = hasJustChanged(stamp.changed),
                    .content = ProfileText()};
  std::unique_ptr<QFile> file = openWatched(path);
  if (!file) {
    loaded.isUnsure = true;
    return loaded;
  }
  if (stamp.size > kSmallFile) {
    loaded.content = std::make_unique<ProfileLines>(std::move(file));
  } else {
    loaded.content = ProfileText(file->read(kSmallFile));
    loaded.isUnsure = loaded.isUnsure || file->error() != QFileDevice::NoError;
  }
  return loaded;
}

void ProfileReader::bringToFront(const QString& path) {
  const auto found = std::find_if(remembered_.begin(), remembered_.end(),
                                  [&](const Remembered& file) { return file.path == path; });
  const std::optional<FileStamp> stamp = stampOf(path);
  if (found != remembered_.end() && stamp && found->stamp == *stamp && !found->isUnsure) {
    std::rotate(remembered_.begin(), found, found + 1);
    return;
  }
  if (found != remembered_.end()) remembered_.erase(found);
  if (!stamp) throw RunTimeError(RunTimeError::FileNotFound);
  remembered_.push_front(load(path, *stamp));
  if (remembered_.size() > kMostRemembered) remembered_.pop_back();
}

QString ProfileReader::read(const QString& path, const QString& section, const QString& key) {
  bringToFront(path);
  auto& content = remembered_.front().content;
  if (const auto* text = std::get_if<ProfileText>(&content)) return text->value(section, key);
  return std::get<std::unique_ptr<ProfileLines>>(content)->value(key);
}

}  // namespace platform::inline base
