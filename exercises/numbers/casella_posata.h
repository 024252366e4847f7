#pragma once

#include "input/testo_input_numerico.h"
#include "platform/forms/controls/text_box.h"

namespace somme::inline numeri {

// The box that takes the answer, typed or scanned. A text box that is never shown carries its place
// and the size of its letters through the resizing of the form.
class CasellaPosata {
 public:
  // Both are kept by reference.
  CasellaPosata(TestoInputNumerico& casella, const platform::TextBox& posto)
      : casella_(casella), posto_(posto) {}

  // Puts the box at its place as it stands now, and shows it.
  void Mostra();

 private:
  TestoInputNumerico& casella_;
  const platform::TextBox& posto_;
};

}  // namespace somme::inline numeri
