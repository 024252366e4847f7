#include "platform/forms/controls/socket.h"

#include "platform/base/network.h"
#include "platform/base/run_time_error.h"
#include "platform/base/time_source.h"
#include "platform/forms/gate.h"
#include "platform/forms/ground.h"

namespace platform::inline forms {

namespace {

constexpr double kLongestConnect = 1;  // seconds

}  // namespace

Socket::Socket(ControlHost& host) : Control(host) {}

Socket::~Socket() = default;

QWidget* Socket::create(QWidget* /*parent*/) {
  return nullptr;
}

void Socket::connectTo(quint16 port) {
  if (!connection_ && ground().network() != nullptr) {
    connection_ = ground().network()->makeConnection([this] { raiseEvent(arrival_); });
  }
  if (connection_) connection_->open(port);
}

void Socket::letConnect() {
  TimeSource& time = ground().time();
  const double end = time.secondsSinceMidnight() + kLongestConnect;
  ground().gate().wait([&time] { time.letEventsRun(); });
  while (connection_ && connection_->isOpening()) {
    const double left = end - time.secondsSinceMidnight();
    // At midnight the clock begins anew; the wait ends all the same.
    if (!(left > 0) || left > kLongestConnect) return;
    ground().gate().wait([&time, left] { time.sleepUntilEvent(left); });
  }
}

bool Socket::isConnected() const {
  return connection_ && connection_->isOpen();
}

void Socket::sendData(const QByteArray& message) {
  if (!isConnected()) throw RunTimeError(RunTimeError::ConnectionState);
  connection_->send(message);
}

QByteArray Socket::getData() {
  return connection_ ? connection_->take() : QByteArray();
}

void Socket::close() {
  if (connection_) connection_->close();
}

}  // namespace platform::inline forms
