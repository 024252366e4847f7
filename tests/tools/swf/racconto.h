#pragma once

#include <QStringList>

#include "platform/flash/movie.h"

namespace prove {

// One piece of a drawing; twips.
[[nodiscard]] QString pezzo(char tipo, QPoint controllo, QPoint fine);
[[nodiscard]] QString matrice(const QTransform& m);
[[nodiscard]] QString byteInCifre(std::span<const std::uint8_t> byte);

// What the player's reader has found in a movie, in words that can be held against what was meant:
// one line for the head, for each frame's command and for each drawn part. The characters come by
// their numbers, which are told from 1 to the last.
[[nodiscard]] QStringList raccontoDi(const platform::flash::Movie& filmato);

}  // namespace prove
