#include "platform/forms/window_system.h"

#include <QByteArray>
#include <QtGlobal>

namespace platform::inline forms {

namespace {

constexpr char kChoice[] = "QT_QPA_PLATFORM";

}  // namespace

// A Wayland compositor that has an X server, too. There boxes can be put over the window that they
// belong to, and the server tells which keys are down when the keyboard comes back from elsewhere;
// on Wayland itself no program can ask for either. Where X does not answer Wayland is taken.
void onBestWindowSystem(const std::function<void()>& make) {
  const bool both =
      !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") && !qEnvironmentVariableIsEmpty("DISPLAY");
  const bool choose = both && !qEnvironmentVariableIsSet(kChoice);
  if (choose) qputenv(kChoice, "xcb;wayland");
  make();
  if (choose) qunsetenv(kChoice);
}

}  // namespace platform::inline forms
