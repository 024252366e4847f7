#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace suoni {

// Samples of one channel in a second.
inline constexpr int kFrequenza = 48000;

// One note: a fundamental with a few overtones, which starts softly and dies away by itself.
struct Nota {
  double hertz;
  double inizio;       // seconds from the start of the sound
  double forza;        // against the other notes of the sound; 1 is a full one
  double smorzamento;  // seconds in which the fundamental falls to about a third
};

struct Suono {
  std::span<const Nota> note;
  std::span<const double> armonici;  // strength of the fundamental and of each overtone after it
  double durata;                     // seconds
  double picco;                      // largest sample, as a share of full scale
};

// Left and right sample by turns. Uses sums and products alone, which round alike everywhere: the
// same sound is the same samples on every machine, whatever its mathematics library.
[[nodiscard]] std::vector<std::int16_t> Componi(const Suono& suono);

}  // namespace suoni
