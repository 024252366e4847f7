#include "platform/devices/linux/sdl_library.h"

#include <dlfcn.h>

namespace platform {

namespace {

template <typename Function>
bool find(void* library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(::dlsym(library, name));
  return function != nullptr;
}

}  // namespace

std::optional<SdlLibrary> SdlLibrary::load(const char* file) {
  void* library = ::dlopen(file, RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  SdlLibrary sdl;
  const bool complete = library != nullptr && find(library, "SDL_SetHint", sdl.setHint) &&
                        find(library, "SDL_GetError", sdl.getError) &&
                        find(library, "SDL_TLSCleanup", sdl.tlsCleanup) &&
                        find(library, "SDL_AudioInit", sdl.audioInit) &&
                        find(library, "SDL_AudioQuit", sdl.audioQuit) &&
                        find(library, "SDL_RWFromFile", sdl.rwFromFile) &&
                        find(library, "SDL_LoadWAV_RW", sdl.loadWav) &&
                        find(library, "SDL_FreeWAV", sdl.freeWav) &&
                        find(library, "SDL_OpenAudioDevice", sdl.openAudioDevice) &&
                        find(library, "SDL_CloseAudioDevice", sdl.closeAudioDevice) &&
                        find(library, "SDL_PauseAudioDevice", sdl.pauseAudioDevice) &&
                        find(library, "SDL_QueueAudio", sdl.queueAudio) &&
                        find(library, "SDL_ClearQueuedAudio", sdl.clearQueuedAudio) &&
                        find(library, "SDL_GetQueuedAudioSize", sdl.getQueuedAudioSize);
  if (!complete) {
    return std::nullopt;
  }
  sdl.setHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  return sdl;
}

}  // namespace platform
