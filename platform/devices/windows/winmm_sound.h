#pragma once

#include "platform/devices/desk_sound.h"

namespace platform::inline devices {

// Sound on the system's own player of WAV files, which takes the device for as long as one lasts.
//
// A new sound cuts off the one before. A file that is missing or is no sound gives a beep; where
// there is no device there is silence, and one line on stderr in the whole run.
class WinmmSound final : public DeskSound {
 public:
  // beep: the desktop's beep; called on the thread that calls play.
  explicit WinmmSound(std::function<void()> beep);
};

}  // namespace platform::inline devices
