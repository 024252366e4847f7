#pragma once

#include <QString>

namespace somme::inline stampa {

// What goes wrong on the way of an image to the paper. It is raised inside of the print dialog and
// told by the routine that was called from outside.
struct ErroreDiStampa {
  static constexpr int kStampante = 482;
  static constexpr int kOggettoErrato = 445;
  static constexpr int kParametriErrati = 5;

  int numero = kStampante;
  QString descrizione;  // for a message box, line by line
};

}  // namespace somme::inline stampa
