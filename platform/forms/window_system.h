#pragma once

#include <functional>

namespace platform::inline forms {

// Makes the application, by `make`, on the window system on which the program is at its best, where
// the desktop has more than one and nobody has chosen (QT_QPA_PLATFORM). What it starts later takes
// its own choice.
void onBestWindowSystem(const std::function<void()>& make);

}  // namespace platform::inline forms
