#pragma once

#include "app/shared/ambiente.h"
#include "platform/forms/form.h"
#include "platform/forms/proportional_layout.h"

namespace somme::inline condiviso {

// What every form of the program has, a part of the form: the program around it, the layout that
// keeps it in proportion, the icon of the splash form, the choice between the two pointers.
class Comune {
 public:
  Comune(platform::Form& forma, Ambiente& ambiente);

  [[nodiscard]] Ambiente& ambiente() const { return ambiente_; }
  // What the form is to the program.
  [[nodiscard]] SchedaForma scheda() const {
    return SchedaDi(ambiente_.forme, forma_.design().name);
  }
  // Gives every control of the form the system's arrow or the program's own pointer, as
  // `CursoreDiSistema` says.
  void ImpostaCursoreSistema();

 protected:
  ~Comune() = default;

  [[nodiscard]] StatoCondiviso& stato() const { return ambiente_.stato; }
  [[nodiscard]] const StringheCondivise& stringhe() const { return ambiente_.stringhe; }

  // Steps of the form's Load.
  void PrendiLingua();
  void PrendiIcona();

  // Shows another form, then unloads this one.
  void VaiA(std::string_view nome);

  platform::ProportionalLayout EssResizer1;

 private:
  platform::Form& forma_;
  Ambiente& ambiente_;
};

}  // namespace somme::inline condiviso
