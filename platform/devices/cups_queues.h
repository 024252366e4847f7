#pragma once

#include <functional>
#include <optional>

#include "platform/base/printers.h"
#include "platform/devices/cups_library.h"

namespace platform {

// The system's print queues, asked through CUPS. Every call may take as long as the print server
// likes: it belongs on a thread of its own. Each thread that calls makes its own connection.
class CupsQueues {
 public:
  explicit CupsQueues(const CupsLibrary& cups) : cups_(cups) {}

  // Tells each queue as it is found. Printers that only the network knows are looked for where the
  // print server has no queue.
  using Found = std::function<void(const QString& name, bool isStandard)>;
  void list(const Found& found) const;

  // What a queue can do. Nothing where there is none of that name.
  [[nodiscard]] Printers::Opened open(const QString& name) const;

  // Sends a job. wanted: asked before the job is let go, and afterwards; a job that is wanted no
  // longer, or could not be sent whole, is cancelled.
  [[nodiscard]] PrintResult print(const PrintJob& job, const std::function<bool()>& wanted) const;

 private:
  class Queue;

  int enumerate(cups_ptype_t kinds, int milliseconds, const Found& found) const;
  enum class Pages { All, End };
  [[nodiscard]] bool send(const Queue& queue, int job, const PrintJob& content, Pages which) const;

  CupsLibrary cups_;
};

}  // namespace platform
