// Makes the sounds of a right and of a wrong answer.
//
//   fabbrica_suoni FOLDER     writes FOLDER/si.wav and FOLDER/no.wav; the folder is made if missing
//
// Ends with 0, with 1 when a file cannot be written, with 2 when called otherwise.

#include <array>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "file_wav.h"
#include "onda.h"

namespace {

using suoni::Nota;
using suoni::Suono;

// G4, C5, E5: three quick steps up, the last one rings.
constexpr std::array kNoteSi = {
    Nota{.hertz = 392.00, .inizio = 0.00, .forza = 0.80, .smorzamento = 0.13},
    Nota{.hertz = 523.25, .inizio = 0.10, .forza = 0.85, .smorzamento = 0.14},
    Nota{.hertz = 659.26, .inizio = 0.20, .forza = 1.00, .smorzamento = 0.20},
};
constexpr std::array kArmoniciSi = {1.0, 0.30, 0.12, 0.04};

// D4, B flat 3: two soft steps down, like a friendly "not yet".
constexpr std::array kNoteNo = {
    Nota{.hertz = 293.66, .inizio = 0.00, .forza = 1.00, .smorzamento = 0.12},
    Nota{.hertz = 233.08, .inizio = 0.17, .forza = 1.00, .smorzamento = 0.16},
};
constexpr std::array kArmoniciNo = {1.0, 0.22, 0.05};

constexpr Suono kSi{.note = kNoteSi, .armonici = kArmoniciSi, .durata = 0.62, .picco = 0.25};
constexpr Suono kNo{.note = kNoteNo, .armonici = kArmoniciNo, .durata = 0.50, .picco = 0.22};

bool Scrivi(const std::filesystem::path& file, const Suono& suono) {
  if (suoni::ScriviWav(file, suoni::Componi(suono), suoni::kFrequenza)) return true;
  std::fprintf(stderr, "fabbrica_suoni: cannot write %s\n", file.string().c_str());
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("fabbrica_suoni FOLDER\n", stderr);
    return 2;
  }
  const std::filesystem::path cartella = argv[1];
  std::error_code errore;
  std::filesystem::create_directories(cartella, errore);  // a failure shows at the first file
  return Scrivi(cartella / "si.wav", kSi) && Scrivi(cartella / "no.wav", kNo) ? 0 : 1;
}
