#include "platform/devices/linux/sdl_library.h"

#include "platform/devices/linux/shared_library.h"

namespace platform::inline devices {

std::optional<SdlLibrary> SdlLibrary::load(const char* file) {
  const SharedLibrary library(file);
  SdlLibrary sdl;
  const bool complete =
      library.find("SDL_SetHint", sdl.setHint) && library.find("SDL_GetError", sdl.getError) &&
      library.find("SDL_TLSCleanup", sdl.tlsCleanup) &&
      library.find("SDL_AudioInit", sdl.audioInit) &&
      library.find("SDL_AudioQuit", sdl.audioQuit) &&
      library.find("SDL_RWFromFile", sdl.rwFromFile) &&
      library.find("SDL_LoadWAV_RW", sdl.loadWav) && library.find("SDL_FreeWAV", sdl.freeWav) &&
      library.find("SDL_OpenAudioDevice", sdl.openAudioDevice) &&
      library.find("SDL_CloseAudioDevice", sdl.closeAudioDevice) &&
      library.find("SDL_PauseAudioDevice", sdl.pauseAudioDevice) &&
      library.find("SDL_QueueAudio", sdl.queueAudio) &&
      library.find("SDL_ClearQueuedAudio", sdl.clearQueuedAudio) &&
      library.find("SDL_GetQueuedAudioSize", sdl.getQueuedAudioSize);
  if (!complete) {
    return std::nullopt;
  }
  sdl.setHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  return sdl;
}

}  // namespace platform::inline devices
