#include "platform/devices/linux/own_files.h"

#include <fcntl.h>
#include <linux/close_range.h>
#include <unistd.h>

#include <climits>
#include <initializer_list>

namespace platform::inline devices {

bool takeOwnFiles() {
  if (::close_range(STDERR_FILENO + 1, UINT_MAX, CLOSE_RANGE_UNSHARE) != 0) {
    return false;
  }
  const int nobody = ::open("/dev/null", O_RDWR);
  if (nobody < 0) {
    return false;
  }
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    ::dup2(nobody, stream);
  }
  if (nobody > STDERR_FILENO) {
    ::close(nobody);
  }
  return true;
}

}  // namespace platform::inline devices
