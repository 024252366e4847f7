#pragma once

#include <QtGlobal>

namespace platform::inline forms {
class TextBox;
class UpDown;
}

namespace somme::inline stampa {

inline constexpr int kMassimoCampo = 2000;  // millimetres

// A box of the print dialog that takes whole millimetres, its spinner, and the number that follows
// both. All of them outlive the handlers that `PreparaCampo` sets.
struct CampoMillimetri {
  platform::TextBox& testo;
  platform::UpDown& freccia;
  int minimo;  // the highest is kMassimoCampo
  qint32& valore;
};

// Lets digits alone into the box, and a minus at its start where the lowest number is negative;
// binds the spinner; from then on every change of the text is put back to the limits, and the
// number follows. Text that is no number is 0.
void PreparaCampo(const CampoMillimetri& campo);

}  // namespace somme::inline stampa
