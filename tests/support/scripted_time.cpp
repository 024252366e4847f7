#include "support/scripted_time.h"

#include <QCoreApplication>
#include <algorithm>

namespace prova {

class ScriptedTime::ScriptedTicker final : public platform::Ticker {
 public:
  ScriptedTicker(ScriptedTime& time, std::function<void()> tick)
      : time_(time), tick_(std::move(tick)) {
    time_.tickers_.push_back(this);
  }
  ~ScriptedTicker() override { std::erase(time_.tickers_, this); }

  void setInterval(int milliseconds) override {
    interval_ = milliseconds;
    next_ = time_.now_ + milliseconds / 1000.0;
  }
  [[nodiscard]] int interval() const override { return interval_; }
  void start() override {
    if (!running_) next_ = time_.now_ + interval_ / 1000.0;
    running_ = true;
  }
  void stop() override { running_ = false; }
  [[nodiscard]] bool isRunning() const override { return running_; }

  [[nodiscard]] bool isLive() const { return running_ && interval_ > 0; }
  [[nodiscard]] double next() const { return next_; }
  void fire() {
    next_ += interval_ / 1000.0;
    tick_();
  }

 private:
  ScriptedTime& time_;
  std::function<void()> tick_;
  int interval_ = 0;
  double next_ = 0;
  bool running_ = false;
};

ScriptedTime::ScriptedTime() = default;
ScriptedTime::~ScriptedTime() = default;

std::unique_ptr<platform::Ticker> ScriptedTime::makeTicker(std::function<void()> tick) {
  return std::make_unique<ScriptedTicker>(*this, std::move(tick));
}

bool ScriptedTime::anyTicker() const {
  return std::any_of(tickers_.begin(), tickers_.end(),
                     [](const ScriptedTicker* ticker) { return ticker->isLive(); });
}

void ScriptedTime::after(double seconds, std::function<void()> action) {
  appointments_.push_back({now_ + seconds, std::move(action)});
}

void ScriptedTime::letEventsRun() {
  ++yields_;
  fireDue();
  QCoreApplication::processEvents();
}

void ScriptedTime::sleepUntilEvent(double seconds) {
  ++yields_;
  moveTo(now_ + seconds);
  fireDue();
  QCoreApplication::processEvents();
}

void ScriptedTime::advance(double seconds) {
  const double end = now_ + seconds;
  while (now_ < end) {
    moveTo(end);
    fireDue();
    QCoreApplication::processEvents();
  }
}

// Up to the next thing that is due, at most to the limit.
void ScriptedTime::moveTo(double limit) {
  double target = limit;
  for (const ScriptedTicker* ticker : tickers_) {
    if (ticker->isLive()) target = std::min(target, ticker->next());
  }
  for (const Appointment& appointment : appointments_) target = std::min(target, appointment.at);
  now_ = std::max(now_, target);
}

void ScriptedTime::fireDue() {
  const std::vector<ScriptedTicker*> now = tickers_;
  for (ScriptedTicker* ticker : now) {
    const bool alive = std::find(tickers_.begin(), tickers_.end(), ticker) != tickers_.end();
    if (alive && ticker->isLive() && ticker->next() <= now_) ticker->fire();
  }
  const auto later = std::stable_partition(
      appointments_.begin(), appointments_.end(),
      [this](const Appointment& appointment) { return appointment.at > now_; });
  std::vector<Appointment> due(std::make_move_iterator(later),
                               std::make_move_iterator(appointments_.end()));
  appointments_.erase(later, appointments_.end());
  for (const Appointment& appointment : due) appointment.action();
}

}  // namespace prova
