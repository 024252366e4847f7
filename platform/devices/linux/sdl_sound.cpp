#include "platform/devices/linux/sdl_sound.h"

#include <QFile>
#include <chrono>
#include <optional>
#include <utility>

#include "platform/devices/linux/own_files.h"
#include "platform/devices/linux/sdl_player.h"
#include "platform/devices/sound_desk.h"

namespace platform::inline devices {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// How long the sound system may take beyond the length of a sound until the device is closed.
constexpr milliseconds kPatience{2000};
constexpr milliseconds kLook{20};
// What the sound system still holds when the last sample has been handed over.
constexpr milliseconds kTail{250};

// Waits until the sound has been heard; earlier when there is something else to do.
void hearOut(SoundDesk& desk, const SdlPlayer& player, milliseconds length) {
  if (!desk.rest(length)) {
    return;
  }
  const Clock::time_point latest = Clock::now() + kPatience;
  while (player.isPlaying() && Clock::now() < latest) {
    if (!desk.rest(kLook)) {
      return;
    }
  }
  static_cast<void>(desk.rest(kTail));
}

void playRequest(SoundDesk& desk, SdlPlayer& player, const SoundRequest& request) {
  const std::optional<SdlWave> wave = player.read(QFile::encodeName(request.path).toStdString());
  if (!wave) {
    desk.sendBeep();
    return;
  }
  if (!player.open(wave->spec)) {
    desk.sendComplaint(player.error());
    return;
  }
  if (request.isTooLate()) {
    desk.sendComplaint("the sound system took too long");
    return;
  }
  if (!player.play(*wave)) {
    desk.sendComplaint(player.error());
    return;
  }
  hearOut(desk, player, wave->length());
}

// The whole life of the sound thread. The libraries of a sound system write what they like to the
// error stream, from threads of their own, too: theirs is not the program's.
void serve(SoundDesk& desk) {
  takeOwnFiles();
  std::optional<SdlLibrary> sdl;
  std::optional<SdlPlayer> player;
  while (true) {
    const std::optional<SoundRequest> request = desk.waitForRequest();
    if (!request) {
      break;
    }
    if (!player) {
      sdl = SdlLibrary::load();
      if (!sdl) {
        desk.sendComplaint("SDL2 is missing");
        continue;
      }
      player.emplace(*sdl);
    }
    playRequest(desk, *player, *request);
    if (desk.rest(milliseconds(0))) {
      player->close();
    }
  }
  player.reset();
  if (sdl) {
    sdl->tlsCleanup();
  }
}

}  // namespace

SdlSound::SdlSound(std::function<void()> beep) : DeskSound(std::move(beep), serve) {}

}  // namespace platform::inline devices
