#pragma once

#include <chrono>
#include <memory>
#include <optional>

#include "platform/base/printers.h"
#include "platform/devices/bounded_work.h"
#include "platform/devices/pdf_folder.h"

namespace platform::inline devices {

// The printers of the machine: the queues of the system, and after them the built-in one that makes
// files. The system is asked on threads of their own, which a server that does not answer may hold
// as long as it likes; what it takes for that is loaded by the first call.
class SystemPrinters final : public Printers {
 public:
  // How long the print server is waited for at most, whatever is asked of it.
  struct Patience {
    std::chrono::milliseconds list{10000};
    std::chrono::milliseconds open{10000};
    std::chrono::milliseconds print{20000};
  };

  SystemPrinters(TimeSource& time, PdfFolder folder)
      : SystemPrinters(time, std::move(folder), Patience{}) {}
  SystemPrinters(TimeSource& time, PdfFolder folder, Patience patience);

  // The built-in printer is the default where the system has none. Where it has not answered in
  // time nobody knows, and there is no default: no other printer takes the place of the one that
  // is meant.
  [[nodiscard]] List list() override;
  [[nodiscard]] Opened open(const QString& name) override;
  [[nodiscard]] PrintResult print(const PrintJob& job) override;

 private:
  BoundedWork work_;
  PdfFolder folder_;
  Patience patience_;
  // What the built-in printer is called: another printer may have its name.
  QString builtIn_;
};

}  // namespace platform::inline devices
