#pragma once

#include <memory>
#include <optional>

#include "platform/base/printers.h"
#include "platform/devices/bounded_work.h"
#include "platform/devices/pdf_folder.h"

namespace platform {

// The printers of the machine: the queues of CUPS, and after them the built-in one that makes
// files. CUPS is asked on threads of their own, which a server that does not answer may hold as
// long as it likes; its library is loaded by the first call.
class SystemPrinters final : public Printers {
 public:
  SystemPrinters(TimeSource& time, PdfFolder folder);

  // The built-in printer is the default where CUPS has none, and where it does not answer.
  [[nodiscard]] List list() override;
  [[nodiscard]] Opened open(const QString& name) override;
  [[nodiscard]] PrintResult print(const PrintJob& job) override;

 private:
  BoundedWork work_;
  PdfFolder folder_;
  // What the built-in printer is called: another printer may have its name.
  QString builtIn_;
};

}  // namespace platform
