#pragma once

#include <memory>
#include <type_traits>

#include "app/shared/scheda_forma.h"

// How the rows of the table of forms are written.
namespace somme::inline programma {

// varianti: what a class that makes several forms is to make. Beside the form's name, where it
// wants to know that.
template <class F, const auto&... varianti>
std::shared_ptr<platform::Form> Crea(Ambiente& ambiente, std::string_view nome) {
  if constexpr (std::is_constructible_v<F, Ambiente&, decltype(varianti)...>) {
    return std::make_shared<F>(ambiente, varianti...);
  } else {
    return std::make_shared<F>(ambiente, nome, varianti...);
  }
}

template <class F>
constexpr SchedaForma Pagina(std::string_view nome) {
  return {nome, Crea<F>, Genere::Pagina};
}
template <class F, const auto&... varianti>
constexpr SchedaForma Menu(std::string_view nome) {
  return {nome, Crea<F, varianti...>, Genere::Menu};
}

// What the forms of a family in one range have in common.
struct Percorso {
  Famiglia famiglia;
  qint32 portata;
  std::string_view menu;
};

template <class F, const auto&... varianti>
constexpr SchedaForma Esercizio(std::string_view nome, const Percorso& percorso,
                                Modo modo = Modo::MouseTastiera, std::string_view foglio = {}) {
  return {nome,
          Crea<F, varianti...>,
          Genere::Esercizio,
          percorso.famiglia,
          percorso.portata,
          modo,
          percorso.menu,
          foglio};
}

}  // namespace somme::inline programma
