#pragma once

#include "tools/swf/filmato.h"

namespace somme::filmati {

// Blocks are of one hand with the pictures on buttons and sheets (immagini/README.md): the same
// colour for each kind, one outline for all, round corners, a white light at the upper left.
inline constexpr swf::Colore kVerde{93, 220, 90};
inline constexpr swf::Colore kRosso{255, 90, 82};
inline constexpr swf::Colore kBlu{74, 151, 245};
inline constexpr swf::Colore kContorno{24, 33, 59};

// The three kinds of block by how many units stand side by side and on top of each other.
struct Specie {
  int colonne;
  int righe;
  swf::Colore tinta;
};

inline constexpr Specie kUnita{1, 1, kBlu};
inline constexpr Specie kLungo{1, 10, kRosso};
inline constexpr Specie kPiatto{10, 10, kVerde};

// A block with its corner at the origin, its units `lato` pixels wide; half the width of its
// outline, which is the same for all kinds, stands outside. Ten units standing on each other look
// nearly like a long, and ten longs side by side like a flat.
[[nodiscard]] swf::Forma blocco(const Specie& specie, double lato);

// A clip that shows a block and can turn into the colour of the next kind: at rest on frame 1,
// played from frame 2 it takes that colour in as many frames as asked for and stays so. Ten such
// blocks close together are the picture of one of the next kind.
[[nodiscard]] swf::LineaTempo bloccoCheCambia(swf::Filmato& filmato, const Specie& specie,
                                              swf::Colore nuova, double lato, int fotogrammi);

}  // namespace somme::filmati
