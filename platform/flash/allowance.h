#pragma once

#include <cstddef>

#include "platform/flash/budget.h"
#include "platform/flash/movie_error.h"

namespace platform::flash {

// The budget of loading as readers see it: what can no longer be paid ends the tag that is being
// read.
class Allowance {
 public:
  explicit Allowance(Budget& budget) : budget_(budget) {}

  // Takes that much memory, in bytes, and the work of filling it. What counts are the things that a
  // few bytes of a file can multiply, roughly, not every byte. Throws MovieError when no more is
  // left.
  void spend(std::size_t bytes) {
    constexpr std::int64_t kWorkPerByte = 3;
    check(budget_.hold(bytes) && budget_.spend(static_cast<std::int64_t>(bytes) * kWorkPerByte));
  }
  // Takes work that leaves nothing behind, count times. Throws MovieError, too.
  void work(std::int64_t nanoseconds, std::size_t count = 1) {
    check(budget_.spend(nanoseconds * static_cast<std::int64_t>(count)));
  }

  [[nodiscard]] bool isSpent() const { return budget_.isSpent(); }

 private:
  static void check(bool enough) {
    if (!enough) throw MovieError("the movie needs too much time or memory", 0);
  }

  Budget& budget_;
};

}  // namespace platform::flash
