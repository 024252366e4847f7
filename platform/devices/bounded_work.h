#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

#include "platform/base/time_source.h"

namespace platform::inline devices {

// Whether whoever asked for a piece of work still waits for it. Shared by both.
class Waiting {
 public:
  // The worker's side: false when nobody waits any more.
  [[nodiscard]] bool goesOn();
  void done();

  // The side that waits. True when the work was done within the time; events run meanwhile.
  [[nodiscard]] bool waitFor(TimeSource& time, std::chrono::milliseconds limit);

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  bool done_ = false;
  bool givenUp_ = false;
};

// Has work that may hang done on threads of its own, and waits for it, but never longer than told.
// The first moment of the wait sleeps; from then on events run, so that the window stays alive.
class BoundedWork {
 public:
  explicit BoundedWork(TimeSource& time) : time_(time) {}

  // The result, or nothing when it did not come in time; the work then goes on unheard, and can see
  // that by what it is handed. Gives up at once while too much unheard work hangs.
  template <class Result>
  std::optional<Result> run(std::function<Result(Waiting& waiting)> work,
                            std::chrono::milliseconds limit) {
    const auto waiting = std::make_shared<Waiting>();
    const auto result = std::make_shared<std::optional<Result>>();
    const bool inTime = start(
        waiting, [waiting, result, work = std::move(work)] { *result = work(*waiting); }, limit);
    return inTime ? std::move(*result) : std::nullopt;
  }

 private:
  bool start(const std::shared_ptr<Waiting>& waiting, std::function<void()> work,
             std::chrono::milliseconds limit);

  TimeSource& time_;
  std::shared_ptr<std::atomic<int>> threads_ = std::make_shared<std::atomic<int>>(0);
};

}  // namespace platform::inline devices
