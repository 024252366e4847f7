#pragma once

#include <cstddef>

#include "platform/flash/movie_error.h"

namespace platform::flash {

// How much memory the things read from one movie may still take. What counts are the things that a
// few bytes of a file can multiply, roughly, not every byte.
class Allowance {
 public:
  explicit Allowance(std::size_t bytes) : left_(bytes) {}

  // Throws MovieError when no more is left.
  void spend(std::size_t bytes) {
    if (bytes > left_) {
      left_ = 0;
      throw MovieError("the movie needs too much memory", 0);
    }
    left_ -= bytes;
  }

  [[nodiscard]] bool isSpent() const { return left_ == 0; }

 private:
  std::size_t left_;
};

}  // namespace platform::flash
