#include "swf/blocchi.h"

#include <algorithm>

namespace somme::filmati {
namespace {

using swf::Colore;
using swf::Filmato;
using swf::Forma;
using swf::LineaTempo;
using swf::Percorso;
using swf::Riempimento;

constexpr Colore kCiglio{214, 255, 206};

// The same colour, seen through.
constexpr Colore velo(Colore colore, double quanto) {
  return {colore.rosso, colore.verde, colore.blu, static_cast<std::uint8_t>(255 * quanto)};
}

// The lines between the units: fine and half seen through, that a flat does not turn dark, with a
// stronger one after the fifth, that a child need not count to ten.
Percorso griglia(const Specie& specie, double lato, bool meta) {
  const double larghezza = specie.colonne * lato;
  const double altezza = specie.righe * lato;
  Percorso linee;
  for (int i = 1; i < specie.colonne; ++i) {
    if ((i == 5) == meta) linee.vai({i * lato, 0}).linea({i * lato, altezza});
  }
  for (int i = 1; i < specie.righe; ++i) {
    if ((i == 5) == meta) linee.vai({0, i * lato}).linea({larghezza, i * lato});
  }
  return linee;
}

// A light edge inside the outline: by it a flat is told from the one that it lies over.
Percorso ciglio(const Specie& specie, double lato, double orlo) {
  return Percorso().rettangoloTondo(
      {orlo, orlo, specie.colonne * lato - 2 * orlo, specie.righe * lato - 2 * orlo}, lato * 0.1);
}

// A short white line near the upper left corner, longer on what is wider.
Percorso luce(const Specie& specie, double lato) {
  const double x = lato * (specie.colonne > 1 ? 0.9 : 0.34);
  const double lunga = lato * (specie.colonne > 1 ? 2.2 : 0.26);
  const double y = lato * (specie.colonne > 1 ? 0.6 : 0.36);
  return Percorso().vai({x, y}).linea({x + lunga, y});
}

}  // namespace

Forma blocco(const Specie& specie, double lato) {
  const Percorso bordo =
      Percorso().rettangoloTondo({0, 0, specie.colonne * lato, specie.righe * lato}, lato * 0.2);
  // On boards with small blocks the lines stay wide enough to be seen in a small window.
  const double orlo = std::max(lato * 0.1, 1.4);
  const double fine = std::max(lato / 18, 0.8);

  Forma forma;
  forma.dipingi(bordo, Riempimento::tinta(specie.tinta));
  if (specie.righe > 1) {
    const double traspare = specie.colonne > 1 ? 0.4 : 0.75;
    forma.traccia(griglia(specie, lato, false), {fine, velo(kContorno, traspare)});
    forma.traccia(griglia(specie, lato, true), {fine * 1.3, velo(kContorno, 0.85)});
  }
  if (specie.colonne > 1) forma.traccia(ciglio(specie, lato, orlo), {orlo, kCiglio});
  forma.traccia(luce(specie, lato), {lato * 0.18, velo({255, 255, 255}, 0.75)});
  forma.traccia(bordo, {orlo, kContorno});
  return forma;
}

LineaTempo bloccoCheCambia(Filmato& filmato, const Specie& specie, Colore nuova, double lato,
                           int fotogrammi) {
  const auto prima = filmato.definisci(blocco(specie, lato));
  const auto dopo = filmato.definisci(blocco({specie.colonne, specie.righe, nuova}, lato));
  LineaTempo clip;
  clip.poni(1, prima).esegui(swf::Azioni().ferma()).mostra();
  clip.poni(2, dopo, {.colore = swf::velato(1.0 / fotogrammi)}).mostra();
  for (int i = 2; i < fotogrammi; ++i) {
    clip.muovi(2, {.colore = swf::velato(static_cast<double>(i) / fotogrammi)}).mostra();
  }
  clip.muovi(2, {.colore = swf::velato(1)}).togli(1).esegui(swf::Azioni().ferma()).mostra();
  return clip;
}

}  // namespace somme::filmati
