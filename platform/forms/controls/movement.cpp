#include "platform/forms/controls/movement.h"

#include "platform/forms/ground.h"

namespace platform::inline forms {

namespace {

constexpr int kStep = 16;  // milliseconds, a picture of most screens

}  // namespace

void Movement::run(Ground& ground, int milliseconds) {
  if (!ground.mayMove()) {
    finish();
    return;
  }
  if (!ticker_) {
    ticker_ = ground.time().makeTicker([this] { step(); });
    ticker_->setInterval(kStep);
  }
  ground_ = &ground;
  begun_ = ground.time().secondsSinceMidnight();
  seconds_ = milliseconds / 1000.0;
  moves_ = true;
  show_(0);
  ticker_->start();
}

void Movement::finish() {
  if (!moves_) return;
  moves_ = false;
  ticker_->stop();
  show_(1);
}

// The clock says how far it is: on a slow machine it takes fewer steps, and no more time. At
// midnight the clock begins anew, and the movement ends.
void Movement::step() {
  const double gone = ground_->time().secondsSinceMidnight() - begun_;
  if (gone < 0 || gone >= seconds_) {
    finish();
  } else {
    show_(gone / seconds_);
  }
}

}  // namespace platform::inline forms
