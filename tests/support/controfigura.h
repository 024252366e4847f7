#pragma once

#include <string>

#include "app/shared/forma.h"

namespace prova {

// What a form's name and design are kept in, before the form itself is made of them.
struct DisegnoProprio {
  explicit DisegnoProprio(std::string_view quale)
      : nome(quale), disegno{.name = nome, .caption = "", .width = 9000, .height = 6000} {}

  std::string nome;
  platform::FormDesign disegno;
};

// Stands at the end of a road instead of the form of that name: an empty page.
class Controfigura final : private DisegnoProprio, public somme::Forma {
 public:
  Controfigura(somme::Ambiente& ambiente, std::string_view quale)
      : DisegnoProprio(quale), Forma(ambiente, disegno) {}
};

// The program's forms, with a stand-in for every exercise.
[[nodiscard]] std::shared_ptr<platform::Form> SenzaEsercizi(somme::Ambiente& ambiente,
                                                            std::string_view nome);

}  // namespace prova
