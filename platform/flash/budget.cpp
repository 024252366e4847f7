#include "platform/flash/budget.h"

#include <algorithm>
#include <ctime>

namespace platform::flash {

namespace {

// Counted work between two looks at the clock.
constexpr std::int64_t kBetweenLooks = 1'000'000;

}  // namespace

std::int64_t Budget::processorTime() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return std::int64_t(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

void Budget::begin(const Amount& amount) {
  left_ = amount.work;
  memoryLeft_ = amount.memory;
  end_ = clock_() + amount.time;
  nextLook_ = std::max<std::int64_t>(0, left_ - kBetweenLooks);
}

void Budget::look() {
  if (left_ <= 0 || clock_() >= end_) {
    exhaust();
  } else {
    nextLook_ = std::max<std::int64_t>(0, left_ - kBetweenLooks);
  }
}

}  // namespace platform::flash
