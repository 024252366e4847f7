#pragma once

#include <array>
#include <span>

#include "cases/famiglia.h"
#include "games/quantita.h"

namespace somme::inline giochi {

// In what the rules of the blocks up to 99 and of those up to 999 differ: longs and units, or
// flats, too.
struct RegoleBlocchi {
  Famiglia famiglia;  // of `TipoEsercizio`
  // The kinds of block, in the order in which the boards are joined: from the units.
  std::span<const Posto> specie;
  // The kinds of which ten are to become one of the next, in the order in which that is asked for.
  std::span<const Posto> cambi;
  // How many blocks of each kind a new case takes off the joined board, from the first on.
  Quantita sgombero;
};

inline constexpr std::array kSpecieBlocchi{Posto::Unita, Posto::Decine, Posto::Centinaia};
inline constexpr std::array kCambiBlocchi{Posto::Unita, Posto::Decine};

inline constexpr RegoleBlocchi kRegoleBlocchiEntro99{
    .famiglia = Famiglia::BlocchiDecine,
    .specie = std::span(kSpecieBlocchi).first(2),
    .cambi = std::span(kCambiBlocchi).first(1),
    .sgombero = {.decine = 9, .unita = 19},
};
// The flats are not taken off: those that a case has shown stay on the joined board until its movie
// is loaded anew. Kept: see docs/oddities.md.
inline constexpr RegoleBlocchi kRegoleBlocchiEntro999{
    .famiglia = Famiglia::BlocchiCentinaia,
    .specie = kSpecieBlocchi,
    .cambi = kCambiBlocchi,
    .sgombero = {.decine = 19, .unita = 19},
};

}  // namespace somme::inline giochi
