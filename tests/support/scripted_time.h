#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/base/time_source.h"

namespace prova {

// A clock that a test moves by hand. It moves by itself inside waits, so that no test sleeps: a
// wait jumps from one thing that is due to the next. Timers tick by this clock alone.
class ScriptedTime final : public platform::TimeSource {
 public:
  ScriptedTime();
  ~ScriptedTime() override;

  [[nodiscard]] double secondsSinceMidnight() const override { return now_; }
  void letEventsRun() override;
  void sleepUntilEvent(double seconds) override;
  [[nodiscard]] std::unique_ptr<platform::Ticker> makeTicker(std::function<void()> tick) override;

  void setNow(double seconds) { now_ = seconds; }
  // Lets so much time pass, outside of any wait of the program.
  void advance(double seconds);
  // Does something when the clock has moved on by so many seconds: the pupil's hand inside a wait.
  void after(double seconds, std::function<void()> action);
  // How often events were let run, by yields and waits.
  [[nodiscard]] int yields() const { return yields_; }
  // Whether any timer is running.
  [[nodiscard]] bool anyTicker() const;

 private:
  class ScriptedTicker;
  struct Appointment {
    double at;
    std::function<void()> action;
  };

  void moveTo(double limit);
  void fireDue();

  double now_ = 36000;  // ten in the morning
  int yields_ = 0;
  std::vector<ScriptedTicker*> tickers_;
  std::vector<Appointment> appointments_;
};

}  // namespace prova
