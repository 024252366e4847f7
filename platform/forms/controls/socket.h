#pragma once

#include <QByteArray>
#include <functional>
#include <memory>

#include "platform/base/network.h"
#include "platform/forms/control.h"

namespace platform::inline forms {

// A form's connection to another program of this computer. The form is the client. Arrivals come
// through the form's gate, also inside its waits, and stop for ever when the form is unloaded.
class Socket : public Control {
 public:
  explicit Socket(ControlHost& host);
  ~Socket() override;

  // Something has arrived; nobody tells the handler of a connection, a close or a failure.
  void onDataArrival(std::function<void()> handler) { arrival_ = std::move(handler); }

  // Starts a connection to a port of the loopback address.
  void connectTo(quint16 port);
  // Lets events run until the connection is up or refused, at most one second. Does not return when
  // the form has gone meanwhile.
  void letConnect();
  [[nodiscard]] bool isConnected() const;
  // One message. Throws RunTimeError(ConnectionState) without a connection that is up.
  void sendData(const QByteArray& message);
  // The whole of what has arrived, as one message.
  [[nodiscard]] QByteArray getData();
  // Never fails.
  void close();

  void formGone() override { close(); }

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;

 private:
  std::function<void()> arrival_;
  std::unique_ptr<Connection> connection_;  // made at the first connect
};

}  // namespace platform::inline forms
