// What the tests of the movie's control have in common.
#pragma once

#include <QCoreApplication>
#include <QFile>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QWidget>

#include "hand_made.h"
#include "platform/base/time_source.h"

namespace view_bench {

// A clock that a test moves by hand.
class HandTicker final : public platform::Ticker {
 public:
  explicit HandTicker(std::function<void()> tick) : tick_(std::move(tick)) {}
  void setInterval(int milliseconds) override { interval_ = milliseconds; }
  [[nodiscard]] int interval() const override { return interval_; }
  void start() override { running_ = true; }
  void stop() override { running_ = false; }
  [[nodiscard]] bool isRunning() const override { return running_; }
  void tick() { tick_(); }

 private:
  std::function<void()> tick_;
  int interval_ = 0;
  bool running_ = false;
};

class HandTime final : public platform::TimeSource {
 public:
  [[nodiscard]] double secondsSinceMidnight() const override { return 0; }
  void letEventsRun() override { QCoreApplication::processEvents(); }
  void sleepUntilEvent(double) override {}
  [[nodiscard]] std::unique_ptr<platform::Ticker> makeTicker(std::function<void()> tick) override {
    auto made = std::make_unique<HandTicker>(std::move(tick));
    ticker = made.get();
    return made;
  }

  HandTicker* ticker = nullptr;
};

// Movies written to files.
class MovieFolder {
 public:
  // Writes a movie, gives its path.
  QString saved(const QByteArray& bytes) {
    QString path = folder_.filePath(QStringLiteral("%1.swf").arg(++count_));
    QFile out(path);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size()) {
      qFatal("cannot write the movie");
    }
    return path;
  }

  [[nodiscard]] QString path() const { return folder_.path(); }
  [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }

 private:
  QTemporaryDir folder_;
  int count_ = 0;
};

inline void moveMouse(QWidget& widget, QPointF to) {
  QMouseEvent event(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, Qt::NoButton, {});
  QCoreApplication::sendEvent(&widget, &event);
}

// A button of ten pixels, character 2, that shows character 1.
inline QByteArray redButtonTelling(const char* command, const char* args) {
  using namespace hand_made;
  const QByteArray records = u8(9) + u16(1) + u16(1) + shift(0, 0) + u8(0);
  return tag(7, u16(2) + records + tell(command, args) + u8(0));
}

}  // namespace view_bench
