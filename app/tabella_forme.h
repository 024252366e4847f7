#pragma once

#include <span>
#include <string_view>

#include "app/shared/scheda_forma.h"
#include "platform/forms/design.h"

namespace somme::inline programma {

// A family's button on the main menu. Lengths are twips.
struct VoceFamiglia {
  std::string_view pulsante;  // its name, by which the language files know it
  double sinistra;
  double alto;
  std::string_view parole;    // UTF-8
  std::string_view immagine;  // a drawing of the program's, by its name
  platform::Rgb tinta;
  Famiglia famiglia;       // while it cannot be answered in the pupil's way, the button is hidden
  std::string_view forma;  // the form that it leads to: a menu, or an exercise
};

// The families, in the order of the main menu.
[[nodiscard]] std::span<const VoceFamiglia> LeFamiglie();

// Every form that the program has, and all that it is: the one place in which that stands.
[[nodiscard]] TabellaForme LeForme();

}  // namespace somme::inline programma
