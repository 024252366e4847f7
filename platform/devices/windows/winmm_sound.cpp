#include "platform/devices/windows/winmm_sound.h"

#include <windows.h>
// After the system's own.
#include <mmsystem.h>

#include <QDir>
#include <QFile>
#include <optional>
#include <utility>

#include "platform/devices/sound_desk.h"

namespace platform::inline devices {

namespace {

bool isWave(const QString& path) {
  constexpr qint64 kHead = 12;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray head = file.read(kHead);
  return head.startsWith("RIFF") && head.endsWith("WAVE");
}

void playRequest(SoundDesk& desk, const SoundRequest& request) {
  if (!isWave(request.path)) {
    desk.sendBeep();
    return;
  }
  if (::waveOutGetNumDevs() == 0) {
    desk.sendComplaint("there is no sound device");
    return;
  }
  if (request.isTooLate()) {
    desk.sendComplaint("the sound system took too long");
    return;
  }
  // It goes on by itself, and the next one cuts it off.
  const std::wstring name = QDir::toNativeSeparators(request.path).toStdWString();
  if (::PlaySoundW(name.c_str(), nullptr, SND_FILENAME | SND_ASYNC | SND_NODEFAULT) == 0) {
    desk.sendBeep();
  }
}

void serve(SoundDesk& desk) {
  while (const std::optional<SoundRequest> request = desk.waitForRequest()) {
    playRequest(desk, *request);
  }
}

}  // namespace

WinmmSound::WinmmSound(std::function<void()> beep) : DeskSound(std::move(beep), serve) {}

}  // namespace platform::inline devices
