#pragma once

#include <sys/resource.h>

#include <csignal>

namespace devices_test {

// No file may grow beyond a few bytes, as on a full disk.
class FullDisk {
 public:
  FullDisk() {
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = 100;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int) = nullptr;
};

}  // namespace devices_test
