#pragma once

namespace somme::inline nucleo {

// What a way of input does at the steps of an exercise form's life. A form holds the one that it is
// worked by, if it is worked by more than mouse and keyboard, and hands it to
// `FormaEsercizio::Usa`.
class ModoInput {
 public:
  ModoInput() = default;
  virtual ~ModoInput() = default;
  ModoInput(const ModoInput&) = delete;
  ModoInput& operator=(const ModoInput&) = delete;

  // The form's Load: on both sides of the start of the layout, and after the language.
  virtual void PrimaDelResizer() {}
  virtual void DopoIlResizer() {}
  virtual void AlCaricamento() {}
  // The first step of each activation.
  virtual void AllAttivazione() {}
  // Before the print panel covers the form.
  virtual void AlPannelloStampa() {}
  // Before the form is left for its menu.
  virtual void AllUscita() {}
};

}  // namespace somme::inline nucleo
