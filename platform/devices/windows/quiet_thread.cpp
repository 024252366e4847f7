#include "platform/devices/quiet_thread.h"

#include <system_error>
#include <thread>
#include <utility>

namespace platform::inline devices {

// There are no signals here that a thread would have to be kept from.
bool startQuietThread(std::function<void()> work) {
  try {
    std::thread(std::move(work)).detach();
    return true;
  } catch (const std::system_error&) {
    return false;
  }
}

}  // namespace platform::inline devices
