#pragma once

#include "exercises/bars/disegno_barre.h"
#include "exercises/bars/forma_barre_pulsanti.h"

// Rows of the bars forms that are worked by mouse and keyboard.
namespace somme::disegno {

constexpr Row Aiuto(TwipsRect posto) {
  return row<&FormaBarrePulsanti::PulsanteAiuto>(
      posto, {.caption = "&aiuto", .font = kTahoma14, .picture = "aiuto"});
}

}  // namespace somme::disegno
