#pragma once

#include <cstdint>

#include "tools/swf/scrittore_byte.h"

namespace somme::swf {

// Lengths are pixels of the stage at scale 1, x to the right, y down. The file counts twentieths
// of a pixel ("twips"); a twentieth is the finest step that a drawing can take.
inline constexpr int kTwipPerPixel = 20;

// A length in the file's unit, rounded. Throws std::out_of_range where no field could hold it.
[[nodiscard]] std::int32_t twip(double pixel);

struct Punto {
  double x = 0;
  double y = 0;
};

[[nodiscard]] constexpr Punto operator+(Punto a, Punto b) {
  return {a.x + b.x, a.y + b.y};
}
[[nodiscard]] constexpr Punto operator-(Punto a, Punto b) {
  return {a.x - b.x, a.y - b.y};
}
[[nodiscard]] constexpr Punto operator*(Punto a, double k) {
  return {a.x * k, a.y * k};
}

struct Rettangolo {
  double sinistra = 0;
  double alto = 0;
  double larghezza = 0;
  double altezza = 0;
};

struct Colore {
  std::uint8_t rosso = 0;
  std::uint8_t verde = 0;
  std::uint8_t blu = 0;
  std::uint8_t opacita = 255;  // 0 is clear, 255 covers
};

// How a thing stands in what holds it: x' = a·x + c·y + tx, y' = b·x + d·y + ty, tx and ty in
// pixels.
struct Matrice {
  double a = 1;
  double b = 0;
  double c = 0;
  double d = 1;
  double tx = 0;
  double ty = 0;
};

[[nodiscard]] constexpr Matrice spostato(Punto dove) {
  return {.tx = dove.x, .ty = dove.y};
}
// Grown or shrunk round the thing's own origin, which comes to stand at `dove`.
[[nodiscard]] constexpr Matrice scalato(double quanto, Punto dove = {}) {
  return {.a = quanto, .d = quanto, .tx = dove.x, .ty = dove.y};
}

// What becomes of each channel: value · per / 256 + piu. 256 and 0 leave it as it is.
struct TrasformaColore {
  struct Canale {
    int per = 256;
    int piu = 0;
  };
  Canale rosso, verde, blu, opacita;
};

// So opaque, from 0 (clear) to 1.
[[nodiscard]] TrasformaColore velato(double quanto);
// So much lighter, from 0 (as it is) to 1 (white).
[[nodiscard]] TrasformaColore schiarito(double quanto);

void scrivi(ScrittoreByte& byte, const Rettangolo& rettangolo);
void scrivi(ScrittoreByte& byte, const Matrice& matrice);
void scrivi(ScrittoreByte& byte, const TrasformaColore& trasforma);
void scriviRgb(ScrittoreByte& byte, Colore colore);
void scriviRgba(ScrittoreByte& byte, Colore colore);

}  // namespace somme::swf
