#pragma once

#include <functional>
#include <string_view>

#include "support/banco.h"

namespace prova {

// A wrong one is one off; where nothing is written, the first board or the abacus is.
enum class Risposta { Giusta, Sbagliata };

// Opens an exercise form as its menu would, at a level whose case needs no carry, and gives the
// answer by the form's own way of input but for the last gesture of the hand. That gesture is
// given back: the key that confirms, or the click or touch on the answer. Throws where the form
// offers none.
[[nodiscard]] std::function<void()> FinoAllUltimoGesto(Banco& banco, std::string_view nome,
                                                       Risposta quale = Risposta::Giusta);

}  // namespace prova
