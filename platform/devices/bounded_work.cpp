#include "platform/devices/bounded_work.h"

#include <QCoreApplication>

#include "platform/devices/quiet_thread.h"

namespace platform::inline devices {

namespace {

using Clock = std::chrono::steady_clock;

// Most answers come within this; it is short enough for several waits in a row to go unnoticed.
constexpr std::chrono::milliseconds kSleepFirst{40};
constexpr int kMostThreads = 4;

}  // namespace

bool Waiting::goesOn() {
  const std::lock_guard lock(mutex_);
  return !givenUp_;
}

void Waiting::done() {
  const std::lock_guard lock(mutex_);
  done_ = true;
  changed_.notify_all();
  // While somebody waits the application is there; the event wakes it.
  if (!givenUp_) {
    QMetaObject::invokeMethod(
        qApp, [] {}, Qt::QueuedConnection);
  }
}

bool Waiting::waitFor(TimeSource& time, std::chrono::milliseconds limit) {
  const Clock::time_point latest = Clock::now() + limit;
  std::unique_lock lock(mutex_);
  changed_.wait_for(lock, std::min(kSleepFirst, limit), [this] { return done_; });
  while (!done_ && Clock::now() < latest) {
    lock.unlock();
    const std::chrono::duration<double> rest = latest - Clock::now();
    time.sleepUntilEvent(std::max(rest.count(), 0.0));
    lock.lock();
  }
  givenUp_ = !done_;
  return done_;
}

bool BoundedWork::start(const std::shared_ptr<Waiting>& waiting, std::function<void()> work,
                        std::chrono::milliseconds limit) {
  if (*threads_ >= kMostThreads) return false;
  ++*threads_;
  const bool started = startQuietThread([waiting, threads = threads_, work = std::move(work)] {
    work();
    waiting->done();
    --*threads;
  });
  if (!started) --*threads_;
  return started && waiting->waitFor(time_, limit);
}

}  // namespace platform::inline devices
