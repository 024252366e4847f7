#pragma once

#include "../cases/scripted_chance.h"
#include "cases/caso.h"

// Cases for the games' tests.
namespace prova {

inline somme::Caso caso(int addendo1, int addendo2) {
  return {.Totale = static_cast<qint16>(addendo1 + addendo2),
          .Addendo1 = static_cast<qint16>(addendo1),
          .Addendo2 = static_cast<qint16>(addendo2)};
}

// What a level draws that takes any sum from 1 to `quante` and splits it anywhere.
inline std::vector<Draw> sommaDivisa(int addendo1, int addendo2, int quante) {
  const int totale = addendo1 + addendo2;
  return {{totale - 1, quante}, {addendo1, totale}};
}

// A case that must not be drawn: whoever asks for a fraction ends the test.
inline ScriptedChance nessunaSorte() {
  return ScriptedChance(std::vector<Draw>{});
}

}  // namespace prova
