#pragma once

#include <functional>

#include "platform/base/printers.h"

namespace platform::inline devices {

// The print queues of the system. Every call may take as long as the system likes: it belongs on a
// thread of its own, as does the object.
class PrintQueues {
 public:
  virtual ~PrintQueues() = default;

  // Tells each queue as it is found, and whether it is the one that is used by default.
  using Found = std::function<void(const QString& name, bool isStandard)>;
  virtual void list(const Found& found) const = 0;

  // What a queue can do. Nothing where there is none of that name.
  [[nodiscard]] virtual Printers::Opened open(const QString& name) const = 0;

  // Sends a job. wanted: asked before the job is let go, and afterwards; a job that is wanted no
  // longer, or could not be sent whole, is cancelled.
  [[nodiscard]] virtual PrintResult print(const PrintJob& job,
                                          const std::function<bool()>& wanted) const = 0;
};

}  // namespace platform::inline devices
