#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "platform/base/services.h"
#include "platform/devices/print_queues.h"

namespace platform::inline devices {

// What the system at hand has for these services. Each system has its own file of this name, in the
// folder that bears the system's, and the build takes the one.

// beep: the desktop's beep; called on the thread that plays.
[[nodiscard]] std::unique_ptr<Sound> systemSound(std::function<void()> beep);
[[nodiscard]] std::unique_ptr<Documents> systemDocuments();
// executable: the path of the running program.
[[nodiscard]] std::unique_ptr<InstanceLock> systemInstanceLock(const QString& executable);
// Null where the system has no way to printers at all. May load a library, and take its time.
[[nodiscard]] std::unique_ptr<PrintQueues> systemQueues();

}  // namespace platform::inline devices
