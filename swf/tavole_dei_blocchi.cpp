#include "swf/tavole_dei_blocchi.h"

#include <stdexcept>

#include "swf/cambio.h"

namespace somme::filmati {
namespace {

using swf::Azioni;
using swf::Filmato;
using swf::Forma;
using swf::LineaTempo;

// What stands in front of what: a block on the move passes over all of a greater kind.
constexpr int kSottoTutto = 1;
constexpr int kPiatti = 100;
constexpr int kLunghi = 200;
constexpr int kLeUnita = 300;
constexpr int kCustodi = 400;

constexpr double kCadenza = 25;

/// Boards have the size of the labels that hold their place on the form, in pixels.
constexpr Filmato::Palco kTavolaPiccola{305, 265, kCadenza, {255, 255, 255}};
constexpr Filmato::Palco kTavolaGrande{697, 281, kCadenza, {255, 255, 255}};

/// Frame 51 is where the form looks for the second change.
constexpr int kFotogrammaCambioDaH = 51;

LineaTempo fermo(Filmato& filmato, const Specie& specie, double lato) {
  LineaTempo clip;
  clip.poni(1, filmato.definisci(blocco(specie, lato))).mostra();
  return clip;
}

/// The same, hidden as soon as it stands on its board.
LineaTempo nascosto(Filmato& filmato, const Specie& specie, double lato) {
  LineaTempo clip;
  clip.poni(1, filmato.definisci(blocco(specie, lato)));
  clip.esegui(Azioni().spingi("").spingi(swf::Proprieta::Visibile).spingi(0).scriviProprieta());
  clip.mostra();
  return clip;
}

std::vector<swf::Punto> insieme(std::vector<swf::Punto> primi,
                                const std::vector<swf::Punto>& altri) {
  primi.insert(primi.end(), altri.begin(), altri.end());
  return primi;
}

/// A single frame that stands still.
void riposa(Filmato& filmato) {
  filmato.scena().esegui(Azioni().ferma()).mostra();
}

}  // namespace

Filmato dau() {
  constexpr double kLato = 18;
  const Fila lunghi{kLungo, "da", aCinque(9, {12, 42}, {24, 0}, {128, 0})};
  const Fila unita{kUnita, "u", aCinque(9, {250, 204}, {0, -24}, {27, 0})};

  Filmato filmato(kTavolaPiccola);
  Forma fondo;
  riquadro(fondo, {3, 4, 236, 257}, kRosso);
  riquadro(fondo, {243, 4, 59, 257}, kBlu);
  filmato.scena().poni(kSottoTutto, filmato.definisci(fondo));
  schiera(filmato.scena(), lunghi, filmato.definisci(fermo(filmato, kLungo, kLato)), kLunghi);
  schiera(filmato.scena(), unita, filmato.definisci(fermo(filmato, kUnita, kLato)), kLeUnita);
  riposa(filmato);
  return filmato;
}

Filmato hdau() {
  constexpr double kLato = 5.5;
  const Fila piatti{kPiatto, "h", aCinque(9, {7, 12}, {59, 0}, {0, 63})};
  const Fila lunghi{kLungo, "da", aCinque(9, {18, 176}, {19, 0}, {105, 0})};
  const Fila unita{kUnita, "u", aCinque(9, {233, 225.5}, {0, -12}, {30, 0})};

  Filmato filmato(kTavolaPiccola);
  Forma fondo;
  riquadro(fondo, {3, 4, 299, 136}, kVerde);
  riquadro(fondo, {3, 144, 199, 117}, kRosso);
  riquadro(fondo, {206, 144, 96, 117}, kBlu);
  filmato.scena().poni(kSottoTutto, filmato.definisci(fondo));
  schiera(filmato.scena(), piatti, filmato.definisci(fermo(filmato, kPiatto, kLato)), kPiatti);
  schiera(filmato.scena(), lunghi, filmato.definisci(fermo(filmato, kLungo, kLato)), kLunghi);
  schiera(filmato.scena(), unita, filmato.definisci(fermo(filmato, kUnita, kLato)), kLeUnita);
  riposa(filmato);
  return filmato;
}

Filmato unione() {
  constexpr double kLato = 24;
  constexpr Cambio::Tempi kTempi{.volo = 22, .intervallo = 4, .colore = 12, .sosta = 4};
  const Fila lunghi{kLungo, "da", aCinque(9, {22, 20}, {33, 0}, {177, 0})};
  const Fila unita{kUnita, "u",
                   insieme(aCinque(10, {402, 236}, {0, -37}, {36, 0}),
                           aCinque(9, {564, 236}, {0, -37}, {36, 0}))};
  const Cambio cambio({.pezzi = unita,
                       .nuovi = lunghi,
                       .primo = {0, 9 * kLato},
                       .passo = {0, -kLato},
                       .salita = 14,
                       .tempi = kTempi,
                       .parola = "cambio"});

  Filmato filmato(kTavolaGrande);
  Forma fondo;
  riquadro(fondo, {4, 4, 336, 273}, kRosso);
  riquadro(fondo, {344, 4, 349, 273}, kBlu);
  LineaTempo& scena = filmato.scena();
  scena.poni(kSottoTutto, filmato.definisci(fondo));
  schiera(scena, lunghi, filmato.definisci(fermo(filmato, kLungo, kLato)), kLunghi);
  schiera(scena, unita,
          filmato.definisci(bloccoCheCambia(filmato, kUnita, kRosso, kLato, kTempi.colore)),
          kLeUnita);
  cambio.prepara(filmato, kCustodi);
  Azioni riposo;
  cambio.rimetti(riposo);
  scena.nomina("riposo").esegui(riposo.ferma()).mostra();
  cambio.recita(scena);
  return filmato;
}

Filmato unionehdau() {
  // Nine hundreds are enough. The cases of this board have sums of at most 999, so the hundreds of
  // the two addends make 9 at most; and where ten tens or more stand on the board, the sum has a
  // hundred more than the addends' own, which then make 8 at most: the flat that the change adds is
  // again the ninth or an earlier one.
  constexpr int kCentinaia = 9;
  constexpr double kLato = 9;
  // The first change must be over before frame 51, so it is brisker than the second.
  constexpr Cambio::Tempi kTempiUDa{.volo = 16, .intervallo = 2, .colore = 8, .sosta = 3};
  constexpr Cambio::Tempi kTempiDaH{.volo = 22, .intervallo = 3, .colore = 12, .sosta = 4};
  const Fila piatti{kPiatto, "h", aCinque(kCentinaia, {11, 36}, {95, 0}, {0, 119})};
  const Fila lunghi{kLungo, "da",
                    insieme(aCinque(10, {500, 36}, {12.5, 0}, {67.5, 0}),
                            aCinque(9, {500, 155}, {12.5, 0}, {67.5, 0}))};
  const Fila unita{kUnita, "u",
                   insieme(aCinque(10, {651, 117}, {0, -18}, {21, 0}),
                           aCinque(9, {651, 236}, {0, -18}, {21, 0}))};
  const Cambio cambioUDa({.pezzi = unita,
                          .nuovi = lunghi,
                          .primo = {0, 9 * kLato},
                          .passo = {0, -kLato},
                          .salita = 10,
                          .tempi = kTempiUDa,
                          .parola = "cambiouda"});
  const Cambio cambioDaH({.pezzi = lunghi,
                          .nuovi = piatti,
                          .primo = {0, 0},
                          .passo = {kLato, 0},
                          .salita = 10,
                          .tempi = kTempiDaH,
                          .parola = "cambiodah"});
  if (1 + cambioUDa.durata() >= kFotogrammaCambioDaH)
    throw std::logic_error("the first change runs into the second");

  Filmato filmato(kTavolaGrande);
  Forma fondo;
  riquadro(fondo, {4, 4, 484, 273}, kVerde);
  riquadro(fondo, {492, 4, 143, 273}, kRosso);
  riquadro(fondo, {639, 4, 54, 273}, kBlu);
  LineaTempo& scena = filmato.scena();
  scena.poni(kSottoTutto, filmato.definisci(fondo));
  // The form hides no flats on this board, neither at its start nor between two cases.
  schiera(scena, piatti, filmato.definisci(nascosto(filmato, kPiatto, kLato)), kPiatti);
  schiera(scena, lunghi,
          filmato.definisci(bloccoCheCambia(filmato, kLungo, kVerde, kLato, kTempiDaH.colore)),
          kLunghi);
  schiera(scena, unita,
          filmato.definisci(bloccoCheCambia(filmato, kUnita, kRosso, kLato, kTempiUDa.colore)),
          kLeUnita);
  cambioUDa.prepara(filmato, kCustodi);
  cambioDaH.prepara(filmato, kCustodi + 1);
  Azioni riposo;
  cambioUDa.rimetti(riposo);
  cambioDaH.rimetti(riposo);
  scena.nomina("riposo").esegui(riposo.ferma()).mostra();
  cambioUDa.recita(scena);
  scena.mostra(kFotogrammaCambioDaH - scena.fotogramma());
  cambioDaH.recita(scena);
  return filmato;
}

}  // namespace somme::filmati
