#pragma once

#include "../cases/caso_di_prova.h"
#include "../cases/scripted_chance.h"

// Cases for the games' tests.
namespace prova {

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
