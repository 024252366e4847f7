#pragma once

#include "platform/forms/controls/button.h"

namespace somme::inline barre {

class FormaBarre;

// The buttons of the bars forms that are worked by mouse and keyboard: help, and the way on. The
// scanning forms have keys for both.
class ComandiBarre {
 public:
  // All are kept by reference.
  ComandiBarre(FormaBarre& forma, platform::Button& aiuto, platform::Button& avanti);

  // The end of the form's Load: the way on shows itself, the pointer is the one of the settings.
  void AlCaricamento();
  // The steps of a right answer up to the written sum.
  void SegnaRisolto();

 private:
  FormaBarre& forma_;
  platform::Button& avanti_;
};

}  // namespace somme::inline barre
