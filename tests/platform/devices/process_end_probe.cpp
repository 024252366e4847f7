// Writes without a line end, leaves a thread running for ever, and ends with the status given.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <thread>

#include "platform/devices/system_process_end.h"

namespace {

void whenLeaving() {
  std::fputs("left by the usual way", stderr);
}

}  // namespace

int main(int argc, char** argv) {
  static_cast<void>(std::atexit(whenLeaving));
  std::thread forEver([] {
    for (;;) {
      ::pause();
    }
  });
  std::fputs("written before", stdout);
  platform::SystemProcessEnd().end(argc > 1 ? std::atoi(argv[1]) : 0);
}
