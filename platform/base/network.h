#pragma once

#include <QByteArray>
#include <functional>
#include <memory>

namespace platform::inline base {

// One end of a conversation with another program of this computer.
class Connection {
 public:
  virtual ~Connection() = default;

  // Starts a connection to a port of the loopback address, and drops an earlier one. Never fails:
  // whether it comes about is told by the two questions below.
  virtual void open(quint16 port) = 0;
  // Neither up nor refused yet.
  [[nodiscard]] virtual bool isOpening() const = 0;
  [[nodiscard]] virtual bool isOpen() const = 0;

  // Hands the bytes over at once; without an open connection they are lost.
  virtual void send(const QByteArray& bytes) = 0;
  // All that has arrived and was not taken yet.
  [[nodiscard]] virtual QByteArray take() = 0;
  // What was sent still goes out; what has arrived is dropped. Never fails, never waits.
  virtual void close() = 0;
};

// The other programs of this computer. No other machine can be reached through it, and nothing
// listens.
class Network {
 public:
  virtual ~Network() = default;
  // A closed connection. arrived: something is there to be taken; called from the event queue, once
  // for all that has come meanwhile, also inside waits.
  [[nodiscard]] virtual std::unique_ptr<Connection> makeConnection(
      std::function<void()> arrived) = 0;
};

}  // namespace platform::inline base
