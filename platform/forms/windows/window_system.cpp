#include "platform/forms/window_system.h"

namespace platform::inline forms {

// There is one.
void onBestWindowSystem(const std::function<void()>& make) {
  make();
}

}  // namespace platform::inline forms
