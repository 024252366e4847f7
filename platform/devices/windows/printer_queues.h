#pragma once

#include "platform/devices/print_queues.h"

namespace platform::inline devices {

// The printers of Windows, the user's own and those of the network that he has set up. What asks
// for a file's name at each job is left out: the program has such a printer of its own, which asks
// nothing.
class PrinterQueues final : public PrintQueues {
 public:
  void list(const Found& found) const override;
  [[nodiscard]] Printers::Opened open(const QString& name) const override;
  [[nodiscard]] PrintResult print(const PrintJob& job,
                                  const std::function<bool()>& wanted) const override;
};

}  // namespace platform::inline devices
