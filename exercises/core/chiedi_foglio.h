#pragma once

#include <string_view>

namespace somme::inline condiviso {
class Ambiente;
}

namespace somme::inline nucleo {

// Asks whether the keyboard sheet is to be printed and, on Yes, shows its form over the exercise.
// foglio: the name of that form.
void ChiediFoglio(Ambiente& ambiente, std::string_view foglio);

}  // namespace somme::inline nucleo
