#include "platform/devices/sound_desk.h"

#include <QCoreApplication>
#include <QtGlobal>
#include <utility>

namespace platform::inline devices {

void SoundDesk::leave(SoundRequest request) {
  const std::lock_guard lock(mutex_);
  request_ = std::move(request);
  changed_.notify_one();
}

void SoundDesk::close() {
  const std::lock_guard lock(mutex_);
  closed_ = true;
  changed_.notify_one();
  sent_.notify_one();
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
  send([this] { beep(); });
}

void SoundDesk::sendComplaint(const std::string& why) {
  if (std::exchange(complained_, true)) {
    return;
  }
  // Here, where the words are the thread's alone, and in one line whatever they are.
  const QByteArray line = QByteArray::fromStdString(why).simplified();
  send([line] { qWarning("No sound: %s", line.constData()); });
}

void SoundDesk::send(std::function<void()> action) {
  const std::lock_guard lock(mutex_);
  messages_.push_back([weak = weak_from_this(), action = std::move(action)] {
    const auto desk = weak.lock();
    if (desk && !desk->closed_) {
      action();
    }
  });
  sent_.notify_one();
}

void SoundDesk::bringMessages() {
  // Under the lock: the program's event queue stands as long as the desk is open.
  std::unique_lock lock(mutex_);
  while (true) {
    sent_.wait(lock, [this] { return closed_ || !messages_.empty(); });
    if (closed_) {
      return;
    }
    for (std::function<void()>& message : std::exchange(messages_, {})) {
      QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(message),
                                Qt::QueuedConnection);
    }
  }
}

}  // namespace platform::inline devices
