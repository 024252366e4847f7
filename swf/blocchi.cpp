#include "swf/blocchi.h"

#include <algorithm>

namespace somme::filmati {
namespace {

using swf::Filmato;
using swf::Forma;
using swf::LineaTempo;
using swf::Percorso;
using swf::Riempimento;

/// The lines between the units: fine, that a flat does not turn dark, with a stronger one after the
/// fifth, that a child need not count to ten.
Percorso griglia(const Specie& specie, double lato, bool meta) {
  const double larghezza = specie.colonne * lato;
  const double altezza = specie.righe * lato;
  Percorso linee;
  for (int i = 1; i < specie.colonne; ++i)
    if ((i == 5) == meta) linee.vai({i * lato, 0}).linea({i * lato, altezza});
  for (int i = 1; i < specie.righe; ++i)
    if ((i == 5) == meta) linee.vai({0, i * lato}).linea({larghezza, i * lato});
  return linee;
}

}  // namespace

Forma blocco(const Specie& specie, double lato) {
  const double altezza = specie.righe * lato;
  const swf::Rettangolo tutto{0, 0, specie.colonne * lato, altezza};
  // On boards with small blocks the lines stay wide enough to be seen in a small window.
  const double fine = std::max(lato / 18, 0.6);
  const double forte = std::max(lato / 10, 1.0);
  Percorso luci;
  for (int i = 0; i < specie.colonne; ++i)
    luci.rettangolo({i * lato + lato * 0.14, 0, lato * 0.18, altezza});

  Forma forma;
  forma.dipingi(Percorso().rettangolo(tutto), Riempimento::tinta(specie.tinta.piena));
  forma.dipingi(luci, Riempimento::tinta(specie.tinta.luce));
  if (specie.righe > 1) {
    forma.traccia(griglia(specie, lato, false), {fine, specie.tinta.segno});
    forma.traccia(griglia(specie, lato, true), {forte, specie.tinta.segno});
  }
  forma.traccia(Percorso().rettangolo(tutto), {forte, specie.tinta.segno});
  return forma;
}

LineaTempo bloccoCheCambia(Filmato& filmato, const Specie& specie, const Tinta& nuova, double lato,
                           int fotogrammi) {
  const auto prima = filmato.definisci(blocco(specie, lato));
  const auto dopo = filmato.definisci(blocco({specie.colonne, specie.righe, nuova}, lato));
  LineaTempo clip;
  clip.poni(1, prima).esegui(swf::Azioni().ferma()).mostra();
  clip.poni(2, dopo, {.colore = swf::velato(1.0 / fotogrammi)}).mostra();
  for (int i = 2; i < fotogrammi; ++i)
    clip.muovi(2, {.colore = swf::velato(static_cast<double>(i) / fotogrammi)}).mostra();
  clip.muovi(2, {.colore = swf::velato(1)}).togli(1).esegui(swf::Azioni().ferma()).mostra();
  return clip;
}

}  // namespace somme::filmati
