#include "platform/devices/system_devices.h"

#include <utility>

#include "platform/devices/windows/mutex_instance_lock.h"
#include "platform/devices/windows/printer_queues.h"
#include "platform/devices/windows/shell_documents.h"
#include "platform/devices/windows/winmm_sound.h"

namespace platform::inline devices {

std::unique_ptr<Sound> systemSound(std::function<void()> beep) {
  return std::make_unique<WinmmSound>(std::move(beep));
}

std::unique_ptr<Documents> systemDocuments() {
  return std::make_unique<ShellDocuments>();
}

std::unique_ptr<InstanceLock> systemInstanceLock(const QString& executable) {
  return std::make_unique<MutexInstanceLock>(executable);
}

std::unique_ptr<PrintQueues> systemQueues() {
  return std::make_unique<PrinterQueues>();
}

}  // namespace platform::inline devices
