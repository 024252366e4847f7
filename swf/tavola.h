#pragma once

#include <string>
#include <vector>

#include "swf/blocchi.h"

namespace somme::filmati {

// Where the blocks of one kind stand on a board, in the order in which they are counted: block n
// has place n - 1. A place is the block's upper left corner.
struct Fila {
  Specie specie;
  std::string prefisso;  // of the clips' names: "da" for "da1", "da2" ...
  std::vector<swf::Punto> posti;

  [[nodiscard]] std::string nome(int n) const { return prefisso + std::to_string(n); }
  [[nodiscard]] swf::Punto posto(int n) const { return posti.at(static_cast<std::size_t>(n - 1)); }
  [[nodiscard]] int quanti() const { return static_cast<int>(posti.size()); }
};

// Places in rows or columns of five: place n lies `passo` further than the one before it; after
// five the next group begins `gruppo` away from the start of the last one.
[[nodiscard]] std::vector<swf::Punto> aCinque(int quanti, swf::Punto primo, swf::Punto passo,
                                              swf::Punto gruppo);

// What the board's trays stand on, and what lies beside the board where its place is wider.
inline constexpr swf::Colore kFondoTavola{222, 229, 240};

// A tray for the blocks of one kind: a pale ground with a rim of the same hue.
void riquadro(swf::Forma& fondo, const swf::Rettangolo& dove, swf::Colore tinta);

// Puts a clip for every place of a row on the scene, from depth `profondita` up; each shows
// `aspetto`.
void schiera(swf::LineaTempo& scena, const Fila& fila, swf::Carattere aspetto, int profondita);

}  // namespace somme::filmati
