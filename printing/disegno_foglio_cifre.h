#pragma once

#include "printing/disegno_foglio.h"
#include "printing/foglio_cifre.h"

// What the designs of both sheets with digits share.
namespace somme::disegno_foglio {

inline constexpr int kCifre = 10;

constexpr std::array<Row, kCifre> Cifre() {
  std::array<Row, kCifre> righe{};
  constexpr double kLato = 1160;
  for (int i = 0; i < kCifre; ++i) {
    const TwipsRect tasto = posti::kCifre.Posto(i, kGriglia);
    righe[static_cast<std::size_t>(i)] =
        row<&FoglioCifre::Label1>(i,
                                  {tasto.left + (tasto.width - kLato) / 2,
                                   tasto.top + (tasto.height - kLato) / 2, kLato, kLato},
                                  {.font = {Face::Arial, 36, true}, .align = Align::Centre});
  }
  return righe;
}

inline constexpr auto kRigheCifre = Cifre();

inline constexpr auto kSimboliCifre = std::to_array<Row>({
    Simbolo<&FoglioCifre::Image4>(posti::kCifre, 12, "cestino", "Cestino"),
    Simbolo<&FoglioCifre::Image2>(posti::kCifre, 14, "conferma", "Conferma"),
    Simbolo<&FoglioCifre::Image3>(posti::kCifre, 15, "avanti", "Avanti"),
});

}  // namespace somme::disegno_foglio
