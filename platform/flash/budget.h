#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>

namespace platform::flash {

// What one step of a movie may still cost: its loading, a tick with all its scripts, a picture.
// Whatever a file can multiply is charged here, where it is done. Work is counted in nanoseconds,
// as an ordinary computer takes them, by estimate, so that a movie comes equally far on every
// computer; behind the count stands a clock, for estimates that are wrong and for slow computers.
class Budget {
 public:
  // Nanoseconds that only rise.
  using Clock = std::function<std::int64_t()>;
  // The processor's time that the thread has used: what else the computer does is not the movie's.
  [[nodiscard]] static std::int64_t processorTime();

  struct Amount {
    std::int64_t work;    // nanoseconds, as counted
    std::int64_t time;    // nanoseconds, by the clock
    std::int64_t memory;  // bytes
  };

  // Empty until begin().
  explicit Budget(Clock clock) : clock_(std::move(clock)) {}

  // A new step, with the full amount.
  void begin(const Amount& amount);

  // Takes work off; false when no more is left, as from then on to the end of the step.
  bool spend(std::int64_t work) {
    left_ -= work;
    if (left_ <= nextLook_) look();
    return left_ > 0;
  }
  // The same for memory. What a step lets go of is not given back.
  bool hold(std::size_t bytes) {
    memoryLeft_ -= static_cast<std::int64_t>(bytes);
    if (memoryLeft_ < 0) exhaust();
    return left_ > 0;
  }
  // Ends the step where something else than its cost does.
  void exhaust() {
    left_ = 0;
    nextLook_ = 0;
  }
  [[nodiscard]] bool isSpent() const { return left_ <= 0; }

 private:
  void look();

  Clock clock_;
  std::int64_t left_ = 0;
  std::int64_t nextLook_ = 0;  // at the clock, when so much is left
  std::int64_t end_ = 0;       // by the clock
  std::int64_t memoryLeft_ = 0;
};

}  // namespace platform::flash
