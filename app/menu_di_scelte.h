#pragma once

#include "app/disegno_menu.h"
#include "app/form_menu_scelte.h"
#include "app/righe_forme.h"

// How menus of large buttons are laid out.
namespace somme::inline programma::disegno {

inline constexpr double kLarghezzaMenuDiScelte = 6420;

constexpr TwipsRect PostoScelta(const MenuDiScelte& menu, int quale) {
  constexpr int kPerColonna = 3;
  const int colonna = quale / kPerColonna;
  return {menu.sinistra + 3360 * colonna, 1440.0 + 1200 * (quale % kPerColonna), menu.larghezza,
          915};
}

template <const MenuDiScelte& kMenu>
constexpr auto DisponiScelte() {
  std::array<Row, kMenu.scelte.size()> righe{};
  for (int i = 0; const Scelta& scelta : kMenu.scelte) {
    righe.at(static_cast<std::size_t>(i)) = {
        scelta.pulsante, scelta.indice, kVoci<FormMenuScelte>.at(static_cast<std::size_t>(i)),
        PostoScelta(kMenu, i), VoceGrande(scelta.parole, kMenu.tinta, scelta.immagine)};
    ++i;
  }
  return righe;
}

// A menu's design.
template <const MenuDiScelte& kMenu>
struct Disposto {
  static constexpr auto kSopra =
      std::to_array<Row>({Intestazione(kLarghezzaMenuDiScelte - 480, kMenu.intestazione)});
  static constexpr auto kScelte = DisponiScelte<kMenu>();
  static constexpr auto kSotto =
      std::to_array<Row>({row<&FormMenuScelte::Command1>(kMenu.indietro, Indietro())});
  static_assert(HaPosto(kLarghezzaMenuDiScelte, kMenu.altezza, kScelte, kSotto),
                "a choice of a menu has no place");
  static_assert(ConImmaginiProprie(kScelte), "a choice of a menu has no picture of its own");

  static constexpr std::array<std::span<const Row>, 3> kTavole{kSopra, kScelte, kSotto};
  static constexpr FormDesign kDisegno =
      Menu(kMenu.nome, kLarghezzaMenuDiScelte, kMenu.altezza, kTavole);
};

}  // namespace somme::inline programma::disegno

namespace somme::inline programma {

// The row of a menu of large buttons.
template <const MenuDiScelte& kMenu>
constexpr SchedaForma MenuDi() {
  return Menu<FormMenuScelte, kMenu, disegno::Disposto<kMenu>::kDisegno>(kMenu.nome);
}

}  // namespace somme::inline programma
