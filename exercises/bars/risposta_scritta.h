#pragma once

#include "exercises/bars/comandi_barre.h"
#include "platform/forms/controls/text_box.h"

namespace somme::inline barre {

// The answer as it is typed on a bars form: into a box that lies over the empty term of the written
// sum, in its colour. Enter, at its release, checks it.
class RispostaScritta {
 public:
  // All are kept by reference. casella: the form's `TestoInput`.
  RispostaScritta(FormaBarre& forma, platform::TextBox& casella, platform::Button& aiuto,
                  platform::Button& avanti);

  // The form's Load after that of `FormaBarre`, and all of its `NuovoCaso`.
  void AlCaricamento();
  void NuovoCaso();
  // Checks what stands in the box. It does not look at the locked state: Enter in the box of a
  // solved case counts again. Kept: see docs/oddities.md.
  void Controlla();

 private:
  FormaBarre& forma_;
  platform::TextBox& casella_;
  platform::Button& avanti_;
  ComandiBarre comandi_;
};

}  // namespace somme::inline barre
