#pragma once

#include "app/shared/ambiente.h"
#include "platform/forms/form.h"
#include "platform/forms/proportional_layout.h"

namespace somme::inline condiviso {

// What every form of the program has: the language at its Load, the layout that keeps it in
// proportion, the icon of the splash form, the choice between the two pointers.
class Forma : public platform::Form {
 public:
  Forma(Ambiente& ambiente, const platform::FormDesign& disegno);

  // Gives every control of the form the system's arrow or the program's own pointer, as
  // `CursoreDiSistema` says.
  void ImpostaCursoreSistema();

 protected:
  [[nodiscard]] Ambiente& ambiente() const { return ambiente_; }
  [[nodiscard]] StatoCondiviso& stato() const { return ambiente_.stato; }
  [[nodiscard]] const StringheCondivise& stringhe() const { return ambiente_.stringhe; }
  // What the form is to the program.
  [[nodiscard]] SchedaForma scheda() const { return SchedaDi(ambiente_.forme, design().name); }

  // Language, layout, icon, in this order: the beginning of every form's Load.
  void onLoad() override;
  void onResize() override;
  void PrendiIcona();
  // The layout's own step of the Load.
  virtual void AvviaResizer() { EssResizer1.start(); }

  // Shows another form, then unloads this one.
  void VaiA(std::string_view nome);

  platform::ProportionalLayout EssResizer1{*this};

 private:
  Ambiente& ambiente_;
};

}  // namespace somme::inline condiviso
