#pragma once

#include <QString>

namespace somme::inline immagini {

// Makes the pictures readable as ":/immagini/<name>.drawing". The pictures lie in a static library,
// from which a program gets them only by this call. To be called before the first form is made; a
// further call does nothing.
void PreparaImmagini();

// The folder that they are in then.
inline QString CartellaImmagini() {
  return QStringLiteral(":/immagini");
}

// The hot spot of puntatore.svg, the tip of the forefinger: in pixels from the top left corner,
// where the picture is 32 by 32.
inline constexpr int kPuntaX = 10;
inline constexpr int kPuntaY = 1;

}  // namespace somme::inline immagini
