#include "platform/devices/sound_desk.h"

#include <QCoreApplication>
#include <QtGlobal>
#include <utility>

namespace platform {

void SoundDesk::leave(SoundRequest request) {
  const std::lock_guard lock(mutex_);
  request_ = std::move(request);
  changed_.notify_one();
}

void SoundDesk::close() {
  const std::lock_guard lock(mutex_);
  closed_ = true;
  changed_.notify_one();
}

std::optional<SoundRequest> SoundDesk::waitForRequest() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return closed_ || request_; });
  return closed_ ? std::nullopt : std::exchange(request_, std::nullopt);
}

bool SoundDesk::rest(std::chrono::milliseconds time) {
  std::unique_lock lock(mutex_);
  return !changed_.wait_for(lock, time, [this] { return closed_ || request_; });
}

void SoundDesk::sendBeep() {
  // Under the lock: the program's event queue stands as long as the desk is open.
  const std::lock_guard lock(mutex_);
  if (closed_) {
    return;
  }
  const auto beepIfOpen = [weak = weak_from_this()] {
    const auto desk = weak.lock();
    if (desk && !desk->isClosed()) {
      desk->beep();
    }
  };
  QMetaObject::invokeMethod(QCoreApplication::instance(), beepIfOpen, Qt::QueuedConnection);
}

void SoundDesk::complain(const std::string& why) {
  if (!std::exchange(complained_, true)) {
    qWarning("No sound: %s", why.c_str());
  }
}

bool SoundDesk::isClosed() {
  const std::lock_guard lock(mutex_);
  return closed_;
}

}  // namespace platform
