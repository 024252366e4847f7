#pragma once

#include <SDL2/SDL_audio.h>
#include <SDL2/SDL_error.h>
#include <SDL2/SDL_hints.h>
#include <SDL2/SDL_rwops.h>
#include <SDL2/SDL_thread.h>

#include <optional>

namespace platform::inline devices {

// What the program uses of SDL2, found when it is first needed: linking it would load some thirty
// libraries at every start, also for a pupil who works without sound. Once loaded it stays until
// the process ends, since threads of its own may be running in it.
struct SdlLibrary {
  // file: the shared library as the dynamic loader finds it. Nothing where it, or a function of it,
  // is missing.
  [[nodiscard]] static std::optional<SdlLibrary> load(const char* file = "libSDL2-2.0.so.0");

  decltype(&SDL_SetHint) setHint = nullptr;
  decltype(&SDL_GetError) getError = nullptr;
  // Gives back what SDL keeps for the calling thread; a thread that SDL did not start calls it
  // last.
  decltype(&SDL_TLSCleanup) tlsCleanup = nullptr;
  // Not SDL_Init, which would bring up SDL's event queue and its signal handlers, too.
  decltype(&SDL_AudioInit) audioInit = nullptr;
  decltype(&SDL_AudioQuit) audioQuit = nullptr;
  decltype(&SDL_RWFromFile) rwFromFile = nullptr;
  decltype(&SDL_LoadWAV_RW) loadWav = nullptr;
  decltype(&SDL_FreeWAV) freeWav = nullptr;
  decltype(&SDL_OpenAudioDevice) openAudioDevice = nullptr;
  decltype(&SDL_CloseAudioDevice) closeAudioDevice = nullptr;
  decltype(&SDL_PauseAudioDevice) pauseAudioDevice = nullptr;
  decltype(&SDL_QueueAudio) queueAudio = nullptr;
  decltype(&SDL_ClearQueuedAudio) clearQueuedAudio = nullptr;
  decltype(&SDL_GetQueuedAudioSize) getQueuedAudioSize = nullptr;
};

}  // namespace platform::inline devices
