#pragma once

#include <string_view>
#include <vector>

#include "app/shared/scheda_forma.h"

namespace somme::inline programma {

// Every form that the program has, and all that it is: the one place in which that stands.
[[nodiscard]] TabellaForme LeForme();

// The names of all forms, in the order of the table.
[[nodiscard]] std::vector<std::string_view> NomiDelleForme();

}  // namespace somme::inline programma
