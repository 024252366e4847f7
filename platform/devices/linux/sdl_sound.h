#pragma once

#include "platform/devices/desk_sound.h"

namespace platform::inline devices {

// Sound on SDL2: library, sound system and device are the sound thread's alone, the device is
// closed again after each sound, and the thread then sleeps.
//
// A new sound cuts off the one before. A file that is missing or is no sound gives a beep; where
// there is no device, or it takes more than a second to come up, there is silence, and one line on
// stderr in the whole run. What the system's sound libraries write there themselves does not come
// through.
class SdlSound final : public DeskSound {
 public:
  // beep: the desktop's beep; called on the thread that calls play.
  explicit SdlSound(std::function<void()> beep);
};

}  // namespace platform::inline devices
