#include "platform/devices/system_devices.h"

#include <optional>
#include <utility>

#include "platform/devices/linux/cups_queues.h"
#include "platform/devices/linux/desktop_documents.h"
#include "platform/devices/linux/file_instance_lock.h"
#include "platform/devices/linux/sdl_sound.h"

namespace platform::inline devices {

std::unique_ptr<Sound> systemSound(std::function<void()> beep) {
  return std::make_unique<SdlSound>(std::move(beep));
}

std::unique_ptr<Documents> systemDocuments() {
  return std::make_unique<DesktopDocuments>();
}

std::unique_ptr<InstanceLock> systemInstanceLock(const QString& executable) {
  return std::make_unique<FileInstanceLock>(executable);
}

std::unique_ptr<PrintQueues> systemQueues() {
  const std::optional<CupsLibrary> cups = CupsLibrary::load();
  return cups ? std::make_unique<CupsQueues>(*cups) : nullptr;
}

}  // namespace platform::inline devices
