#pragma once

#include "exercises/core/disegno_comune.h"
#include "exercises/core/input_scansione.h"

// Rows of the scanning forms' keyboards, with what each form stores of them.
namespace somme::inline nucleo::disegno {

inline constexpr std::array<platform::StoredProperty, 1> kSenzaAiuto{{{"AiutoVisibile", false}}};
inline constexpr std::array<platform::StoredProperty, 1> kSenzaK{{{"KVisibile", false}}};
inline constexpr std::array<platform::StoredProperty, 2> kSenzaKH{
    {{"KVisibile", false}, {"HVisibile", false}}};

// F: a form with the keyboard; stored: what it does not keep at its default.
template <class F>
constexpr Row TastieraNumerica(TwipsRect posto, bool nascosta,
                               std::span<const platform::StoredProperty> stored = {}) {
  return row<&F::TastieraNumericaScansione1>(
      posto, {.toolTip = "Tastiera a scansione", .hidden = nascosta, .stored = stored});
}
template <class F>
constexpr Row TastieraHDU(TwipsRect posto, bool nascosta,
                          std::span<const platform::StoredProperty> stored = {}) {
  return row<&F::TastieraHDUScansione1>(
      posto, {.toolTip = "Tastiera a scansione dei valori", .hidden = nascosta, .stored = stored});
}

}  // namespace somme::inline nucleo::disegno
