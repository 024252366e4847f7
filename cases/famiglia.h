#pragma once

namespace somme::inline casi {

// What the menus lead to: a family of exercises in one range.
enum class Famiglia {
  Nessuna,
  NumeriTotale,
  NumeriAddendo,
  Abaco,
  BlocchiDecine,
  BlocchiCentinaia,
  Barre10,
  Barre20,
  Tabella,
};

}  // namespace somme::inline casi
