#pragma once

#include "platform/devices/linux/cups_library.h"
#include "platform/devices/print_queues.h"

namespace platform::inline devices {

// The print queues that CUPS has. Each thread that calls makes its own connection.
class CupsQueues final : public PrintQueues {
 public:
  explicit CupsQueues(const CupsLibrary& cups) : cups_(cups) {}

  // Printers that only the network knows are looked for where the print server has no queue.
  void list(const Found& found) const override;
  [[nodiscard]] Printers::Opened open(const QString& name) const override;
  [[nodiscard]] PrintResult print(const PrintJob& job,
                                  const std::function<bool()>& wanted) const override;

 private:
  class Queue;

  int enumerate(cups_ptype_t kinds, int milliseconds, const Found& found) const;
  enum class Pages { All, End };
  [[nodiscard]] bool send(const Queue& queue, int job, const PrintJob& content, Pages which) const;

  CupsLibrary cups_;
};

}  // namespace platform::inline devices
