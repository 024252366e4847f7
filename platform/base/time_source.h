#pragma once

#include <functional>
#include <memory>

namespace platform::inline base {

// A timer that ticks until it is stopped. A tick is never queued twice: one that is due while its
// tick is still being handled comes once, afterwards. Changing the interval restarts the count.
class Ticker {
 public:
  virtual ~Ticker() = default;
  virtual void setInterval(int milliseconds) = 0;
  [[nodiscard]] virtual int interval() const = 0;
  virtual void start() = 0;
  virtual void stop() = 0;
  [[nodiscard]] virtual bool isRunning() const = 0;
};

// Clock, timers and the running of events of one program. The real one runs Qt's event loop; a
// test's moves by hand, also inside waits.
class TimeSource {
 public:
  virtual ~TimeSource() = default;

  // Seconds since midnight, local time, with fractions.
  [[nodiscard]] virtual double secondsSinceMidnight() const = 0;
  // Lets what is queued run and returns.
  virtual void letEventsRun() = 0;
  // Sleeps until an event has been handled or the seconds have passed, whichever is first.
  virtual void sleepUntilEvent(double seconds) = 0;
  // A stopped timer with an interval of 0.
  [[nodiscard]] virtual std::unique_ptr<Ticker> makeTicker(std::function<void()> tick) = 0;
};

}  // namespace platform::inline base
