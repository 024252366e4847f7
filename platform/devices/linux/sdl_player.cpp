#include "platform/devices/linux/sdl_player.h"

#include <array>
#include <cstdlib>

namespace platform::inline devices {

namespace {

// The sound systems of a desktop, by SDL's names, in the order in which they are tried. SDL's other
// ones are left out: no desktop has them, and some write files.
constexpr std::array<const char*, 3> kDrivers{"pulseaudio", "pipewire", "alsa"};

bool driverIsChosenByTheUser() {
  const char* chosen = std::getenv("SDL_AUDIODRIVER");
  return chosen != nullptr && *chosen != '\0';
}

bool sameFormat(const SDL_AudioSpec& a, const SDL_AudioSpec& b) {
  return a.freq == b.freq && a.format == b.format && a.channels == b.channels;
}

}  // namespace

std::chrono::milliseconds SdlWave::length() const {
  const auto frame = static_cast<Uint64>(SDL_AUDIO_BITSIZE(spec.format) / 8) * spec.channels;
  const Uint64 bytesPerSecond = frame * static_cast<Uint64>(spec.freq);
  return std::chrono::milliseconds(bytesPerSecond == 0 ? 0 : 1000 * Uint64{bytes} / bytesPerSecond);
}

std::optional<SdlWave> SdlPlayer::read(const std::string& path) const {
  SdlWave wave;
  Uint8* samples = nullptr;
  SDL_RWops* file = sdl_.rwFromFile(path.c_str(), "rb");
  if (file == nullptr || sdl_.loadWav(file, 1, &wave.spec, &samples, &wave.bytes) == nullptr) {
    return std::nullopt;
  }
  wave.samples = {samples, sdl_.freeWav};
  return wave;
}

bool SdlPlayer::open(const SDL_AudioSpec& spec) {
  if (device_ != 0 && sameFormat(spec, spec_)) {
    return true;
  }
  close();
  if (driverIsChosenByTheUser()) {
    return startSystem(nullptr) && openDevice(spec);
  }
  // The one that worked last comes first: another may take half a minute to say no.
  for (std::size_t i = 0; i < kDrivers.size(); ++i) {
    const std::size_t driver = (firstDriver_ + i) % kDrivers.size();
    if (startSystem(kDrivers[driver]) && openDevice(spec)) {
      firstDriver_ = driver;
      return true;
    }
  }
  return false;
}

bool SdlPlayer::startSystem(const char* driver) {
  started_ = sdl_.audioInit(driver) == 0;
  return started_;
}

bool SdlPlayer::openDevice(const SDL_AudioSpec& spec) {
  spec_ = spec;
  spec_.samples = 1024;  // frames handed over at a time: 21 ms at 48 kHz
  spec_.callback = nullptr;
  device_ = sdl_.openAudioDevice(nullptr, 0, &spec_, nullptr, 0);
  if (device_ == 0) {
    close();
    return false;
  }
  sdl_.pauseAudioDevice(device_, 0);
  return true;
}

bool SdlPlayer::play(const SdlWave& wave) {
  sdl_.clearQueuedAudio(device_);
  return sdl_.queueAudio(device_, wave.samples.get(), wave.bytes) == 0;
}

bool SdlPlayer::isPlaying() const {
  return device_ != 0 && sdl_.getQueuedAudioSize(device_) > 0;
}

void SdlPlayer::close() {
  if (device_ != 0) {
    sdl_.closeAudioDevice(device_);
    device_ = 0;
  }
  if (started_) {
    sdl_.audioQuit();
    started_ = false;
  }
}

}  // namespace platform::inline devices
