#pragma once

#include "platform/base/network.h"

namespace platform::inline devices {

// Real TCP to 127.0.0.1, without any proxy. Needs a QCoreApplication for as long as connections
// live, and belongs to its thread.
//
// An arrival is only posted: its handler runs from the event queue, never inside Qt's own signal,
// since Qt gives no further data to a socket whose handler still waits. What a peer sends faster
// than it is taken stays in the system's hands beyond a mebibyte.
class LoopbackNetwork final : public Network {
 public:
  [[nodiscard]] std::unique_ptr<Connection> makeConnection(std::function<void()> arrived) override;
};

}  // namespace platform::inline devices
