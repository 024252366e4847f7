#pragma once

#include <functional>
#include <memory>

#include "platform/base/services.h"

namespace platform {

class SoundDesk;

// Sound on SDL2. A call only leaves word for a thread that is started by the first sound; library,
// sound system and device are that thread's alone, the device is closed again after each sound, and
// the thread then sleeps.
//
// A new sound cuts off the one before. A file that is missing or is no sound gives a beep; where
// there is no device, or it takes more than a second to come up, there is silence, and one line on
// stderr in the whole run. What the system's sound libraries write there themselves does not come
// through.
//
// Nobody ever waits for the thread: a sound server that hangs may hold it for half a minute. It
// outlives this object when need be, with what it shares with it.
class SdlSound final : public Sound {
 public:
  // beep: the desktop's beep; called on the thread that calls play. The object lives on the thread
  // of the QCoreApplication and goes before it.
  explicit SdlSound(std::function<void()> beep);
  ~SdlSound() override;
  SdlSound(const SdlSound&) = delete;
  SdlSound& operator=(const SdlSound&) = delete;

  void play(const QString& path) override;

 private:
  std::shared_ptr<SoundDesk> desk_;
  bool threadStarted_ = false;
};

}  // namespace platform
