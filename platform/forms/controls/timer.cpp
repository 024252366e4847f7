#include "platform/forms/controls/timer.h"

#include "platform/forms/form.h"
#include "platform/forms/runtime.h"

namespace platform {

Timer::Timer(ControlHost& host) : Control(host) {}

Timer::~Timer() = default;

QWidget* Timer::create(QWidget* /*parent*/) {
  ticker_ = runtime().time().makeTicker([this] { tick(); });
  ticker_->setInterval(interval_);
  if (isEnabled() && interval_ > 0) ticker_->start();
  return nullptr;
}

void Timer::setInterval(int milliseconds) {
  interval_ = milliseconds;
  if (!ticker_) return;
  ticker_->setInterval(milliseconds);
  if (isEnabled() && milliseconds > 0) {
    ticker_->start();
  } else {
    ticker_->stop();
  }
}

void Timer::setEnabled(bool enabled) {
  Control::setEnabled(enabled);
  if (!ticker_) return;
  if (enabled && interval_ > 0) {
    ticker_->start();
  } else {
    ticker_->stop();
  }
}

void Timer::tick() {
  if (form().isUnloaded()) {
    ticker_->stop();
    return;
  }
  raiseEvent(tick_);
}

}  // namespace platform
