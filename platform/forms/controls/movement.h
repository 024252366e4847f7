#pragma once

#include <functional>
#include <memory>

#include "platform/base/time_source.h"

namespace platform::inline forms {

class Ground;

// Something that moves for show, once, in a given time. It has no part in what a form does: it
// takes no event, delays none and has no timer running while nothing moves. Where nothing may move
// for show it stays at its end.
class Movement {
 public:
  // show: puts on the screen how it looks at a part of the way, 0 to 1; 1 is how it looks at rest.
  explicit Movement(std::function<void(double part)> show) : show_(std::move(show)) {}

  // Begins, anew where it was under way.
  void run(Ground& ground, int milliseconds);
  // At once at its end; nothing is shown where it is there already.
  void finish();

 private:
  void step();

  std::function<void(double)> show_;
  std::unique_ptr<Ticker> ticker_;  // made at the first run
  Ground* ground_ = nullptr;
  double begun_ = 0;    // seconds since midnight
  double seconds_ = 0;  // that it takes
  bool moves_ = false;
};

}  // namespace platform::inline forms
