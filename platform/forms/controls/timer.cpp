#include "platform/forms/controls/timer.h"

#include "platform/forms/ground.h"

namespace platform::inline forms {

Timer::Timer(ControlHost& host) : Control(host) {}

Timer::~Timer() = default;

QWidget* Timer::create(QWidget* /*parent*/) {
  ticker_ = ground().time().makeTicker([this] { raiseEvent(tick_); });
  ticker_->setInterval(interval_);
  update();
  return nullptr;
}

void Timer::setInterval(int milliseconds) {
  interval_ = milliseconds;
  if (ticker_) ticker_->setInterval(milliseconds);
  update();
}

void Timer::setEnabled(bool enabled) {
  Control::setEnabled(enabled);
  update();
}

void Timer::update() {
  if (!ticker_) return;
  if (isEnabled() && interval_ > 0 && !home().isUnloaded()) {
    ticker_->start();
  } else {
    ticker_->stop();
  }
}

}  // namespace platform::inline forms
