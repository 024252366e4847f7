#include "platform/devices/qt_time_source.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTime>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace platform::inline devices {

namespace {

class QtTicker final : public Ticker {
 public:
  explicit QtTicker(std::function<void()> tick) : core_(std::make_shared<Core>(std::move(tick))) {
    QObject::connect(&core_->timer, &QTimer::timeout, &core_->timer,
                     [core = core_.get()] { post(core->shared_from_this()); });
  }
  ~QtTicker() override { stop(); }
  QtTicker(const QtTicker&) = delete;
  QtTicker& operator=(const QtTicker&) = delete;

  void setInterval(int milliseconds) override {
    core_->interval = std::max(milliseconds, 0);
    if (core_->running) {
      core_->restart();
    }
  }
  [[nodiscard]] int interval() const override { return core_->interval; }
  void start() override {
    if (!core_->running) {
      core_->running = true;
      core_->restart();
    }
  }
  void stop() override {
    core_->running = false;
    core_->restart();
  }
  [[nodiscard]] bool isRunning() const override { return core_->running; }

 private:
  // Kept alive by the tick that runs, so that its owner may go meanwhile. The timer's own slot is
  // never on the stack when a tick runs, so that it can go, too.
  struct Core : std::enable_shared_from_this<Core> {
    explicit Core(std::function<void()> callback) : tick(std::move(callback)) {
      timer.setTimerType(Qt::PreciseTimer);
    }

    void restart() {
      ++count;
      queued = false;
      if (running && interval > 0) {
        timer.start(interval);
      } else {
        timer.stop();
      }
    }

    std::function<void()> tick;
    QTimer timer;
    int interval = 0;
    bool running = false;
    bool queued = false;
    // Which count the queued tick belongs to: one of an earlier count is void.
    std::uint64_t count = 0;
  };

  static void post(const std::shared_ptr<Core>& core) {
    if (core->queued) {
      return;
    }
    core->queued = true;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [weak = std::weak_ptr<Core>(core), count = core->count] {
          const std::shared_ptr<Core> alive = weak.lock();
          if (alive && alive->count == count) {
            alive->queued = false;
            alive->tick();
          }
        },
        Qt::QueuedConnection);
  }

  std::shared_ptr<Core> core_;
};

}  // namespace

double QtTimeSource::secondsSinceMidnight() const {
  return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

void QtTimeSource::letEventsRun() {
  QCoreApplication::processEvents();
  // A timer that was due has posted its tick behind what was queued.
  QCoreApplication::sendPostedEvents();
}

void QtTimeSource::sleepUntilEvent(double seconds) {
  if (!(seconds > 0)) {
    letEventsRun();
    return;
  }
  constexpr double kLongestMs = 24.0 * 60 * 60 * 1000;
  QTimer limit;
  limit.setTimerType(Qt::PreciseTimer);
  limit.setSingleShot(true);
  // Rounded up, so that the limit has passed when the sleeper reads the clock again.
  limit.start(static_cast<int>(std::ceil(std::min(seconds * 1000, kLongestMs))));
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  QCoreApplication::sendPostedEvents();
}

std::unique_ptr<Ticker> QtTimeSource::makeTicker(std::function<void()> tick) {
  return std::make_unique<QtTicker>(std::move(tick));
}

}  // namespace platform::inline devices
