#pragma once

#include <QByteArrayList>
#include <QElapsedTimer>
#include <QFile>
#include <algorithm>

namespace prova {

// How long the thread that makes one stands still at most between two beats. The time for which it
// was ready to go on and had no processor is left out: that is its neighbours' on the machine.
class StandStill final {
 public:
  StandStill() : unserved_(unserved()) { clock_.start(); }

  void beat() {
    const qint64 before = unserved_;
    unserved_ = unserved();
    longest_ = std::max(longest_, clock_.restart() - (unserved_ - before) / 1'000'000);
  }

  // Milliseconds.
  [[nodiscard]] qint64 longest() const { return longest_; }

 private:
  // Nanoseconds since this thread began; always 0 where the system does not tell.
  static qint64 unserved() {
    QFile told(QStringLiteral("/proc/thread-self/schedstat"));
    if (!told.open(QFile::ReadOnly)) return 0;
    return told.readAll().split(' ').value(1).toLongLong();
  }

  QElapsedTimer clock_;
  qint64 unserved_;
  qint64 longest_ = 0;
};

}  // namespace prova
