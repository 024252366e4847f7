#include "platform/devices/desk_sound.h"

#include <QFileInfo>
#include <chrono>
#include <utility>

#include "platform/devices/quiet_thread.h"
#include "platform/devices/sound_desk.h"

namespace platform::inline devices {

DeskSound::DeskSound(std::function<void()> beep, Serve serve)
    : desk_(std::make_shared<SoundDesk>(std::move(beep))), serve_(serve) {}

DeskSound::~DeskSound() {
  desk_->close();
}

void DeskSound::play(const QString& path) {
  // Seen here, so that it beeps at once also while the thread is held up.
  if (!QFileInfo(path).isFile()) {
    desk_->beep();
    return;
  }
  desk_->leave({path, std::chrono::steady_clock::now()});
  // Where no thread is to be had there is silence, and another try with the next sound.
  brings_ = brings_ || startQuietThread([desk = desk_] { desk->bringMessages(); });
  plays_ = plays_ || startQuietThread([desk = desk_, serve = serve_] { serve(*desk); });
}

}  // namespace platform::inline devices
