#pragma once

#include <functional>

namespace platform::inline devices {

// Starts a thread that nobody joins, for work in a library that may hang: with every signal
// blocked, since the desktop's signals belong to the program's own thread. False where there is no
// thread to be had. The work keeps alive what it needs.
[[nodiscard]] bool startQuietThread(std::function<void()> work);

}  // namespace platform::inline devices
