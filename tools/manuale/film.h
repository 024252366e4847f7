#pragma once

#include <QImage>
#include <vector>

#include "support/banco.h"

namespace manuale {

// Pictures of a moving picture, one each twelfth of a second of the program's clock: ten units on
// the joined board of the blocks are changed into a long. The first is the board before the press
// of the arrow; the last two are the result, written and judged.
[[nodiscard]] std::vector<QImage> FilmDelCambio(prova::Banco& banco);

}  // namespace manuale
