#pragma once

#include "app/shared/comune.h"

namespace somme::inline condiviso {

// A form of the program that is no exercise.
class Forma : public platform::Form, public Comune {
 public:
  Forma(Ambiente& ambiente, const platform::FormDesign& disegno)
      : Form(ambiente.fondo, disegno), Comune(*this, ambiente) {}

 protected:
  // Language, layout, icon, in this order: the beginning of every form's Load.
  void onLoad() override {
    PrendiLingua();
    EssResizer1.start();
    PrendiIcona();
  }
  void onResize() override { EssResizer1.resize(); }
};

}  // namespace somme::inline condiviso
