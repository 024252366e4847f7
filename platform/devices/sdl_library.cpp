#include "platform/devices/sdl_library.h"

#include <dlfcn.h>

namespace platform {

namespace {

template <typename Function>
bool find(void* library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(::dlsym(library, name));
  return function != nullptr;
}

// ALSA tells stderr of every device that it does not find, several lines at each try.
void ignoreAlsaMessage(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                       const char* /*format*/, ...) {}

void silenceAlsa() {
  // Only where SDL has brought it along.
  void* alsa = ::dlopen("libasound.so.2", RTLD_NOW | RTLD_NOLOAD);
  int (*setHandler)(decltype(&ignoreAlsaMessage)) = nullptr;
  if (alsa != nullptr && find(alsa, "snd_lib_error_set_handler", setHandler)) {
    setHandler(&ignoreAlsaMessage);
  }
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
  silenceAlsa();
  return sdl;
}

}  // namespace platform
