#pragma once

#include "platform/base/services.h"

namespace platform::inline forms {

// Whether the desktop in use wants animations, as it tells its programs: by the settings that it
// hands out under X, or by the look that the toolkit takes from it. Needs a QApplication.
class DesktopMotion final : public Motion {
 public:
  [[nodiscard]] bool isWanted() override;
};

}  // namespace platform::inline forms
