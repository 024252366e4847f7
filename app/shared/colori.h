#pragma once

#include <QtGlobal>

#include "platform/forms/design.h"

// The colours of the program's forms; black and white are the ground's.
namespace somme::inline condiviso::colori {

using platform::Rgb;

inline constexpr Rgb kBlu{0, 0, 255};
inline constexpr Rgb kCiano{0, 255, 255};
inline constexpr Rgb kCianoPallido{192, 255, 255};
inline constexpr Rgb kGiallo{255, 255, 0};
inline constexpr Rgb kGialloPallido{255, 255, 192};
inline constexpr Rgb kGrigio{224, 224, 224};
inline constexpr Rgb kGrigioMedio{160, 160, 160};
inline constexpr Rgb kGrigioPallido{245, 245, 245};
inline constexpr Rgb kGrigioRighe{150, 150, 150};
inline constexpr Rgb kInchiostro{24, 33, 59};
inline constexpr Rgb kRosaPallido{255, 192, 255};
inline constexpr Rgb kRosso{255, 0, 0};
inline constexpr Rgb kVerde{0, 255, 0};
inline constexpr Rgb kVerdePallido{192, 255, 192};
inline constexpr Rgb kVerdeScuro{0, 192, 0};

// Of the place values, on sheets as on blocks and beads.
inline constexpr Rgb kColoreMigliaia{181, 123, 238};
inline constexpr Rgb kColoreCentinaia{93, 220, 90};
inline constexpr Rgb kColoreDecine{255, 90, 82};
inline constexpr Rgb kColoreUnita{74, 151, 245};

// Of the menus: their ground, and the bands over the columns of a group of levels.
inline constexpr Rgb kSfondoMenu = kGialloPallido;
inline constexpr Rgb kFascia{214, 232, 255};

// The tint of each family, on its button in the main menu and on its levels: a child finds the way
// by it, and can say "the violet one".
inline constexpr Rgb kTintaBarre{198, 237, 244};
inline constexpr Rgb kTintaTabella{204, 236, 208};
inline constexpr Rgb kTintaBlocchi{244, 212, 214};
inline constexpr Rgb kTintaNumeri{204, 220, 246};
inline constexpr Rgb kTintaAbaco{225, 213, 245};

// A colour as a stored property holds it: a number of 24 bits, red in the lowest eight.
constexpr qint32 InNumero(Rgb colore) {
  return colore.red | colore.green << 8 | colore.blue << 16;
}

}  // namespace somme::inline condiviso::colori
