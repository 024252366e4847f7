#include "platform/devices/system_printers.h"

#include <mutex>

#include "platform/devices/system_devices.h"

namespace platform::inline devices {

namespace {

// What a search has found so far; it is of use also when the search does not come to its end.
struct Findings {
  std::mutex mutex;
  Printers::List list;
};

}  // namespace

SystemPrinters::SystemPrinters(TimeSource& time, PdfFolder folder, Patience patience)
    : work_(time),
      folder_(std::move(folder)),
      patience_(patience),
      builtIn_(QStringLiteral("PDF")) {}

Printers::List SystemPrinters::list() {
  const auto findings = std::make_shared<Findings>();
  const bool whole = work_
                         .run<bool>(
                             [findings](Waiting&) {
                               const auto queues = systemQueues();
                               if (!queues) return false;
                               queues->list([&](const QString& name, bool isStandard) {
                                 const std::lock_guard lock(findings->mutex);
                                 if (!findings->list.names.contains(name)) {
                                   findings->list.names.append(name);
                                 }
                                 if (isStandard) findings->list.standard = name;
                               });
                               return true;
                             },
                             patience_.list)
                         .has_value();
  List result;
  {
    const std::lock_guard lock(findings->mutex);
    result = findings->list;
  }
  // For good: a later search may not come to its end, and the queue would be taken for the file.
  if (result.names.contains(builtIn_)) builtIn_ = QStringLiteral("PDF (file)");
  result.names.append(builtIn_);
  if (result.standard.isEmpty() && whole) result.standard = builtIn_;
  return result;
}

Printers::Opened SystemPrinters::open(const QString& name) {
  if (name == builtIn_) return {Access::Granted, PdfFolder::traits()};
  return work_
      .run<Opened>(
          [name](Waiting&) {
            const auto queues = systemQueues();
            return queues ? queues->open(name) : Opened{};
          },
          patience_.open)
      .value_or(Opened{});
}

PrintResult SystemPrinters::print(const PrintJob& job) {
  if (job.printer == builtIn_) return folder_.print(job);
  return work_
      .run<PrintResult>(
          [job](Waiting& waiting) {
            const auto queues = systemQueues();
            if (!queues) return PrintResult{};
            return queues->print(job, [&waiting] { return waiting.goesOn(); });
          },
          patience_.print)
      .value_or(PrintResult{});
}

}  // namespace platform::inline devices
