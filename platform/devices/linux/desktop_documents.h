#pragma once

#include "platform/base/services.h"

namespace platform::inline devices {

// Opens a document by the desktop's own means, xdg-open, as a process of its own: it outlives this
// program, says nothing on the program's streams, and leaves no dead child behind. Where the
// document or xdg-open is missing nothing happens.
class DesktopDocuments final : public Documents {
 public:
  void open(const QString& path) override;
};

}  // namespace platform::inline devices
