#include "platform/forms/desktop_motion.h"

#include <windows.h>

namespace platform::inline forms {

bool DesktopMotion::isWanted() {
  BOOL wanted = TRUE;
  return ::SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &wanted, 0) == 0 || wanted != FALSE;
}

}  // namespace platform::inline forms
