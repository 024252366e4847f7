#include "platform/devices/quiet_thread.h"

#include <pthread.h>

#include <csignal>
#include <system_error>
#include <thread>

namespace platform::inline devices {

namespace {

// A thread inherits the mask of the one that starts it.
class AllSignalsBlocked {
 public:
  AllSignalsBlocked() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  ~AllSignalsBlocked() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  AllSignalsBlocked(const AllSignalsBlocked&) = delete;
  AllSignalsBlocked& operator=(const AllSignalsBlocked&) = delete;

 private:
  sigset_t before_{};
};

}  // namespace

bool startQuietThread(std::function<void()> work) {
  const AllSignalsBlocked blocked;
  try {
    std::thread(std::move(work)).detach();
    return true;
  } catch (const std::system_error&) {
    return false;
  }
}

}  // namespace platform::inline devices
