#pragma once

#include <functional>
#include <string_view>

#include "support/banco.h"

namespace prova {

// Opens an exercise form as its menu would, at a level whose case needs no carry, and gives the
// right answer by the form's own way of input but for the last gesture of the hand. That gesture is
// given back: the key that confirms, or the click or touch on the answer. Throws where the form
// offers none.
[[nodiscard]] std::function<void()> FinoAllUltimoGesto(Banco& banco, std::string_view nome);

}  // namespace prova
