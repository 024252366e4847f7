#include "swf/tavola.h"

#include <cmath>

namespace somme::filmati {
namespace {

using swf::Colore;

// The colour thinned with white: 0 is white, 1 the colour.
Colore diluito(Colore colore, double quanto) {
  const auto canale = [&](std::uint8_t valore) {
    return static_cast<std::uint8_t>(std::lround(255 - (255 - valore) * quanto));
  };
  return {canale(colore.rosso), canale(colore.verde), canale(colore.blu)};
}

}  // namespace

std::vector<swf::Punto> aCinque(int quanti, swf::Punto primo, swf::Punto passo, swf::Punto gruppo) {
  std::vector<swf::Punto> posti;
  posti.reserve(static_cast<std::size_t>(quanti));
  for (int i = 0; i < quanti; ++i) {
    const int gruppi = i / 5;
    posti.push_back(primo + passo * (i % 5) + gruppo * gruppi);
  }
  return posti;
}

void riquadro(swf::Forma& fondo, const swf::Rettangolo& dove, swf::Colore tinta) {
  fondo.dipingi(swf::Percorso().rettangoloTondo(dove, 6),
                swf::Riempimento::tinta(diluito(tinta, 0.08)), swf::Penna{1, diluito(tinta, 0.6)});
}

void schiera(swf::LineaTempo& scena, const Fila& fila, swf::Carattere aspetto, int profondita) {
  for (int n = 1; n <= fila.quanti(); ++n) {
    scena.poni(profondita + n - 1, aspetto,
               {.matrice = spostato(fila.posto(n)), .nome = fila.nome(n)});
  }
}

}  // namespace somme::filmati
