#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "platform/devices/linux/sdl_library.h"

namespace platform::inline devices {

// A sound as it lies in memory, in the format of its file.
struct SdlWave {
  SDL_AudioSpec spec{};
  std::unique_ptr<Uint8, decltype(&SDL_FreeWAV)> samples{nullptr, nullptr};
  Uint32 bytes = 0;

  [[nodiscard]] std::chrono::milliseconds length() const;
};

// Reads sound files and plays them on the desktop's sound system, one at a time. Each operation
// may take as long as the sound system likes (a server that hangs: 30 s), so that it belongs on a
// thread of its own. All calls come from one thread.
class SdlPlayer {
 public:
  explicit SdlPlayer(const SdlLibrary& sdl) : sdl_(sdl) {}
  ~SdlPlayer() { close(); }
  SdlPlayer(const SdlPlayer&) = delete;
  SdlPlayer& operator=(const SdlPlayer&) = delete;

  // path: as the file system takes it. Nothing where the file is no sound.
  [[nodiscard]] std::optional<SdlWave> read(const std::string& path) const;
  // Makes ready to play sounds of that format, cutting off what is playing. false where there is no
  // device; error() then says why.
  [[nodiscard]] bool open(const SDL_AudioSpec& spec);
  // Plays on the open device, instead of what is playing.
  [[nodiscard]] bool play(const SdlWave& wave);
  // Whether something of the sound has not yet been handed to the sound system.
  [[nodiscard]] bool isPlaying() const;
  // Gives device and sound system back; nothing of them wakes the process afterwards.
  void close();
  [[nodiscard]] std::string error() const { return sdl_.getError(); }

 private:
  [[nodiscard]] bool startSystem(const char* driver);
  [[nodiscard]] bool openDevice(const SDL_AudioSpec& spec);

  SdlLibrary sdl_;
  SDL_AudioSpec spec_{};
  SDL_AudioDeviceID device_ = 0;
  bool started_ = false;
  std::size_t firstDriver_ = 0;  // the one that gave a device last
};

}  // namespace platform::inline devices
