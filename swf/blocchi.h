#pragma once

#include "tools/swf/filmato.h"

namespace somme::filmati {

/// The colours of one kind of block or bead. `piena` is that of the button that puts such a block.
struct Tinta {
  swf::Colore piena;
  swf::Colore luce;   ///< the side turned to the light
  swf::Colore segno;  ///< edges and grid
};

inline constexpr Tinta kVerde{{0, 255, 0}, {140, 255, 130}, {0, 100, 0}};
inline constexpr Tinta kRosso{{255, 0, 0}, {255, 150, 135}, {115, 0, 0}};
inline constexpr Tinta kBlu{{0, 0, 255}, {130, 160, 255}, {0, 0, 95}};

/// The three kinds of block by how many units stand side by side and one upon the other.
struct Specie {
  int colonne;
  int righe;
  Tinta tinta;
};

inline constexpr Specie kUnita{1, 1, kBlu};
inline constexpr Specie kLungo{1, 10, kRosso};
inline constexpr Specie kPiatto{10, 10, kVerde};

/// A block with its corner at the origin, its units `lato` pixels wide. Its look is made so that
/// ten units standing on each other look like a long, and ten longs side by side like a flat.
[[nodiscard]] swf::Forma blocco(const Specie& specie, double lato);

/// A clip that shows a block and can turn into the colour of the next kind: at rest on frame 1,
/// played from frame 2 it takes that colour in as many frames as asked for and stays so. Ten such
/// blocks close together are the picture of one of the next kind.
[[nodiscard]] swf::LineaTempo bloccoCheCambia(swf::Filmato& filmato, const Specie& specie,
                                              const Tinta& nuova, double lato, int fotogrammi);

}  // namespace somme::filmati
