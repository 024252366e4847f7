#pragma once

#include <QString>
#include <memory>

#include "platform/base/services.h"

namespace platform::inline devices {

// One instance for each user and executable, held by a named object of the system, which lets go of
// it when the process ends, however it ends: one that died never blocks a start, and nothing is
// left on the disk. It is the same for all sessions of a user. Where it cannot be had, because
// somebody else has taken the name, the start is allowed, unguarded.
class MutexInstanceLock final : public InstanceLock {
 public:
  // executable: the path of the running program; links in it are resolved.
  explicit MutexInstanceLock(const QString& executable);

  // Taking it again answers as before.
  [[nodiscard]] bool take() override;

 private:
  struct Close {
    void operator()(void* handle) const;
  };

  QString name_;
  std::unique_ptr<void, Close> mutex_;
};

}  // namespace platform::inline devices
