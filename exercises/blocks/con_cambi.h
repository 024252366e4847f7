#pragma once

#include <utility>

#include "exercises/blocks/forma_blocchi.h"

namespace somme {

// A blocks form up to 99: one carry.
template <class Base>
class ConCambio : public Base {
 public:
  template <class... Argomenti>
  explicit ConCambio(Argomenti&&... argomenti) : Base(std::forward<Argomenti>(argomenti)...) {
    PulsanteCambio.onClick([this] { this->Cambia(0); });
  }

  platform::Button PulsanteCambio{*this};

 protected:
  [[nodiscard]] platform::Button& PulsanteDelCambio(std::size_t /*quale*/) override {
    return PulsanteCambio;
  }
};

// A blocks form up to 999: units to tens, tens to hundreds.
template <class Base>
class ConDueCambi : public Base {
 public:
  template <class... Argomenti>
  explicit ConDueCambi(Argomenti&&... argomenti) : Base(std::forward<Argomenti>(argomenti)...) {
    PulsanteCambioUDa.onClick([this] { this->Cambia(0); });
    PulsanteCambioDaH.onClick([this] { this->Cambia(1); });
  }

  platform::Button PulsanteCambioUDa{*this};
  platform::Button PulsanteCambioDaH{*this};

 protected:
  [[nodiscard]] platform::Button& PulsanteDelCambio(std::size_t quale) override {
    return quale == 0 ? PulsanteCambioUDa : PulsanteCambioDaH;
  }
};

// A form with buttons for the blocks up to 999: one more, for the flats.
template <class Base>
class ConPiatti : public Base {
 public:
  template <class... Argomenti>
  explicit ConPiatti(Argomenti&&... argomenti) : Base(std::forward<Argomenti>(argomenti)...) {
    PulsanteH.onClick([this] { ClicPiatti(); });
  }

  platform::Button PulsanteH{*this};

 protected:
  void ClicPiatti() override { this->ClicSpecie(PulsanteH, blocchi::kPiatti); }
};

}  // namespace somme
