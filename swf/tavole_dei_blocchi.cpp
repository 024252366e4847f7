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

// Boards have the size of the labels that hold their place on the form, in pixels.
constexpr Filmato::Palco kTavolaPiccola{305, 265, kCadenza, kFondoTavola};
constexpr Filmato::Palco kTavolaGrande{697, 281, kCadenza, kFondoTavola};

// Frame 51 is where the form looks for the second change.
constexpr int kFotogrammaCambioDaH = 51;

LineaTempo fermo(Filmato& filmato, const Specie& specie, double lato) {
  LineaTempo clip;
  clip.poni(1, filmato.definisci(blocco(specie, lato))).mostra();
  return clip;
}

// The same, hidden as soon as it stands on its board.
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

// A single frame that stands still.
void riposa(Filmato& filmato) {
  filmato.scena().esegui(Azioni().ferma()).mostra();
}

}  // namespace

Filmato dau() {
  constexpr double kLato = 20;
  const Fila lunghi{kLungo, "da", aCinque(9, {10, 32.5}, {24, 0}, {128, 0})};
  const Fila unita{kUnita, "u", aCinque(9, {247, 212.5}, {0, -27}, {28, 0})};

  Filmato filmato(kTavolaPiccola);
  Forma fondo;
  riquadro(fondo, {3, 3, 234, 259}, kRosso);
  riquadro(fondo, {240, 3, 62, 259}, kBlu);
  filmato.scena().poni(kSottoTutto, filmato.definisci(fondo));
  schiera(filmato.scena(), lunghi, filmato.definisci(fermo(filmato, kLungo, kLato)), kLunghi);
  schiera(filmato.scena(), unita, filmato.definisci(fermo(filmato, kUnita, kLato)), kLeUnita);
  riposa(filmato);
  return filmato;
}

Filmato hdau() {
  // Flats lie over one another like cards, more than half of each to be seen across and down: so
  // the units are as large as they are, and easy to tell in a small window, too.
  constexpr double kLato = 9;
  const Fila piatti{kPiatto, "h", aCinque(9, {8.5, 7.5}, {49.5, 0}, {0, 54})};
  const Fila lunghi{kLungo, "da", aCinque(9, {25.5, 165.5}, {17.5, 0}, {96.5, 0})};
  const Fila unita{kUnita, "u", aCinque(9, {237.5, 246.5}, {0, -18}, {27, 0})};

  Filmato filmato(kTavolaPiccola);
  Forma fondo;
  riquadro(fondo, {3, 3, 299, 153}, kVerde);
  riquadro(fondo, {3, 159, 203, 103}, kRosso);
  riquadro(fondo, {209, 159, 93, 103}, kBlu);
  filmato.scena().poni(kSottoTutto, filmato.definisci(fondo));
  schiera(filmato.scena(), piatti, filmato.definisci(fermo(filmato, kPiatto, kLato)), kPiatti);
  schiera(filmato.scena(), lunghi, filmato.definisci(fermo(filmato, kLungo, kLato)), kLunghi);
  schiera(filmato.scena(), unita, filmato.definisci(fermo(filmato, kUnita, kLato)), kLeUnita);
  riposa(filmato);
  return filmato;
}

Filmato unione() {
  constexpr double kLato = 26;
  constexpr Cambio::Tempi kTempi{.volo = 22, .intervallo = 4, .colore = 12, .sosta = 4};
  const Fila lunghi{kLungo, "da", aCinque(9, {21.5, 10.5}, {35, 0}, {191, 0})};
  const Fila unita{kUnita, "u",
                   insieme(aCinque(10, {418, 244.5}, {0, -46}, {40, 0}),
                           aCinque(9, {574, 244.5}, {0, -46}, {40, 0}))};
  const Cambio cambio({.pezzi = unita,
                       .nuovi = lunghi,
                       .primo = {0, 9 * kLato},
                       .passo = {0, -kLato},
                       .salita = 14,
                       .tempi = kTempi,
                       .parola = "cambio"});

  Filmato filmato(kTavolaGrande);
  Forma fondo;
  riquadro(fondo, {4, 4, 357, 273}, kRosso);
  riquadro(fondo, {365, 4, 328, 273}, kBlu);
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
  constexpr double kLato = 12;
  // The first change must be over before frame 51, so it is brisker than the second.
  constexpr Cambio::Tempi kTempiUDa{.volo = 16, .intervallo = 2, .colore = 8, .sosta = 3};
  constexpr Cambio::Tempi kTempiDaH{.volo = 22, .intervallo = 3, .colore = 12, .sosta = 4};
  const Fila piatti{kPiatto, "h", aCinque(kCentinaia, {12.5, 17}, {80, 0}, {0, 127})};
  const Fila lunghi{kLungo, "da",
                    insieme(aCinque(10, {472.2, 17}, {15.5, 0}, {83.5, 0}),
                            aCinque(9, {472.2, 144}, {15.5, 0}, {83.5, 0}))};
  const Fila unita{kUnita, "u",
                   insieme(aCinque(10, {650, 125}, {0, -27}, {22, 0}),
                           aCinque(9, {650, 252}, {0, -27}, {22, 0}))};
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
  if (1 + cambioUDa.durata() >= kFotogrammaCambioDaH) {
    throw std::logic_error("the first change runs into the second");
  }

  Filmato filmato(kTavolaGrande);
  Forma fondo;
  riquadro(fondo, {4, 4, 457, 273}, kVerde);
  riquadro(fondo, {465, 4, 172, 273}, kRosso);
  riquadro(fondo, {641, 4, 52, 273}, kBlu);
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
