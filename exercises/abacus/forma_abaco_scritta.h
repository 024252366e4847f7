#pragma once

#include "exercises/abacus/forma_abaco.h"
#include "input/testo_input_numerico.h"

namespace somme {

// The abacus exercises in which the sum is written into `TestoInput`: the abacus is an aid and
// never judged.
class FormaAbacoScritta : public FormaAbaco {
 public:
  FormaAbacoScritta(Ambiente& ambiente, const platform::FormDesign& disegno);

  TestoInputNumerico TestoInput{*this};

 protected:
  void onLoad() override;
  void ImpostaCifre(qint16 cifre) override { TestoInput.MaxLength.set(cifre); }
  // Behind the operation, in its size.
  void PosaTestoInput();

  // The steps of a verdict in which the forms differ: what leads to the next case is opened; it
  // takes the focus, where it can; the pupil is put back into a wrong number.
  virtual void ApriAvanti() = 0;
  virtual void FuocoAvanti() {}
  virtual void Correggi() {}

 private:
  void Giudica();
};

}  // namespace somme
