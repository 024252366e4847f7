#pragma once

#include <string_view>
#include <vector>

#include "app/tabella_forme.h"

// What tests and measurements ask of the table of forms.
namespace somme::inline programma {

// The names of all forms, in the order of the table.
[[nodiscard]] inline std::vector<std::string_view> NomiDelleForme() {
  std::vector<std::string_view> nomi;
  for (const SchedaForma& scheda : LeForme()) nomi.push_back(scheda.nome);
  return nomi;
}

}  // namespace somme::inline programma

namespace somme::inline condiviso {

// Whether the exercises of a form stand on boards, with places for digits.
[[nodiscard]] constexpr bool HaTavole(const SchedaForma& scheda) {
  return scheda.famiglia == Famiglia::Abaco || scheda.famiglia == Famiglia::BlocchiDecine ||
         scheda.famiglia == Famiglia::BlocchiCentinaia;
}

}  // namespace somme::inline condiviso
