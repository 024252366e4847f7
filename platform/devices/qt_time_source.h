#pragma once

#include "platform/base/time_source.h"

namespace platform::inline devices {

// The clock, the timers and the waits of a running program, on Qt's event loop. Needs a
// QCoreApplication for as long as timers are made or waits run, and belongs to its thread.
//
// Timers are precise and only post: a tick is handed over from the event queue, never inside Qt's
// own timer event, since Qt gives no further ticks to a timer whose handler still waits. A handler
// that waits inside its tick so gets the later ticks inside that wait; one that does not wait gets
// at most one tick for all that came due meanwhile.
//
// start() on a running timer changes nothing. stop() and setInterval() also take back a tick that
// is queued. An interval of 0 or less never ticks. A timer may be stopped or destroyed inside its
// own tick.
class QtTimeSource final : public TimeSource {
 public:
  [[nodiscard]] double secondsSinceMidnight() const override;
  // What is queued now, and the ticks that are due now; not what these queue in their turn. Objects
  // given to deleteLater are destroyed by Qt's own rule: never while the handler that asked for it
  // is on the stack.
  void letEventsRun() override;
  // Without a limit above 0 the same as letEventsRun.
  void sleepUntilEvent(double seconds) override;
  [[nodiscard]] std::unique_ptr<Ticker> makeTicker(std::function<void()> tick) override;
};

}  // namespace platform::inline devices
