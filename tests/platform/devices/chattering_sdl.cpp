// A sound library that has a word to say about everything, on all the standard streams, from its
// load to its end and from a thread of its own: what the program uses of SDL2, by its names.
// CHATTER_HOW tells what becomes of a sound: "plays", "no device", "many lines" (of the reason) or
// "hangs". CHATTER_SEEN names a file that it makes once it has written everywhere.
#include <SDL2/SDL_audio.h>
#include <SDL2/SDL_error.h>
#include <SDL2/SDL_hints.h>
#include <SDL2/SDL_rwops.h>
#include <SDL2/SDL_thread.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <thread>

namespace {

bool is(std::string_view how) {
  const char* chosen = std::getenv("CHATTER_HOW");
  return chosen != nullptr && how == chosen;
}

bool chatter(const char* word) {
  static_cast<void>(std::fprintf(stderr, "chatter: %s\n", word));
  static_cast<void>(std::fprintf(stdout, "chatter: %s\n", word));
  static_cast<void>(std::fflush(stdout));
  constexpr std::string_view kPlain = "chatter without a library's help\n";
  bool written = true;
  for (const int stream : {STDOUT_FILENO, STDERR_FILENO}) {
    written = ::write(stream, kPlain.data(), kPlain.size()) > 0 && written;
  }
  return written;
}

void chatterForEver() {
  while (true) {
    if (chatter("thread")) {
      static_cast<void>(std::fclose(std::fopen(std::getenv("CHATTER_SEEN"), "w")));
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

struct Life {
  Life() { chatter("load"); }
  ~Life() { chatter("end"); }
} const life;

}  // namespace

extern "C" {

SDL_bool SDL_SetHint(const char* /*name*/, const char* /*value*/) {
  chatter("hint");
  return SDL_TRUE;
}
const char* SDL_GetError() {
  return is("many lines") ? "first\nsecond\n\tthird\n" : "no device here";
}
void SDL_TLSCleanup() {
  chatter("clean-up");
}
int SDL_AudioInit(const char* driver) {
  static std::thread chatterer(chatterForEver);
  chatter(driver == nullptr ? "default" : driver);
  while (is("hangs")) {
    std::this_thread::sleep_for(std::chrono::seconds(1));
  }
  return is("plays") ? 0 : -1;
}
void SDL_AudioQuit() {
  chatter("quit");
}
SDL_RWops* SDL_RWFromFile(const char* file, const char* /*mode*/) {
  chatter(file);
  static SDL_RWops opened{};
  return &opened;
}
SDL_AudioSpec* SDL_LoadWAV_RW(SDL_RWops* /*file*/, int /*close*/, SDL_AudioSpec* spec,
                              Uint8** samples, Uint32* bytes) {
  chatter("wave");
  spec->freq = 48000;
  spec->format = AUDIO_S16LSB;
  spec->channels = 1;
  *bytes = 4800;
  *samples = static_cast<Uint8*>(std::calloc(*bytes, 1));
  return spec;
}
void SDL_FreeWAV(Uint8* samples) {
  std::free(samples);
}
SDL_AudioDeviceID SDL_OpenAudioDevice(const char* /*device*/, int /*capture*/,
                                      const SDL_AudioSpec* /*wanted*/, SDL_AudioSpec* /*got*/,
                                      int /*changes*/) {
  chatter("open");
  return 2;
}
void SDL_CloseAudioDevice(SDL_AudioDeviceID /*device*/) {
  chatter("close");
}
void SDL_PauseAudioDevice(SDL_AudioDeviceID /*device*/, int /*pause*/) {
  chatter("pause");
}
int SDL_QueueAudio(SDL_AudioDeviceID /*device*/, const void* /*samples*/, Uint32 /*bytes*/) {
  chatter("queue");
  return 0;
}
void SDL_ClearQueuedAudio(SDL_AudioDeviceID /*device*/) {
  chatter("clear");
}
Uint32 SDL_GetQueuedAudioSize(SDL_AudioDeviceID /*device*/) {
  return 0;
}
}
