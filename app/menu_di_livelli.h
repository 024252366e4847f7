#pragma once

#include <array>

#include "app/disegno_menu.h"
#include "cases/livelli.h"

// Menus that are laid out from the rows of levels.
namespace somme::inline programma::disegno {

// The label of a band: its row, and itself on a form that stands.
struct EtichettaFascia {
  Row (*riga)(TwipsRect posto, Look aspetto);
  const platform::Label& (*in)(const platform::Form& menu);
};
template <auto Etichetta>
constexpr EtichettaFascia SullaFascia() {
  using Menu = typename platform::design::MemberOf<decltype(Etichetta)>::Class;
  return {row<Etichetta>, [](const platform::Form& menu) -> const platform::Label& {
            return static_cast<const Menu&>(menu).*Etichetta;
          }};
}

// A band of a menu: the group that it heads, and the columns below it.
struct FasciaMenu {
  Gruppo gruppo;
  EtichettaFascia etichetta;
  std::string_view parole;
  double sinistra;  // twips, of the band and of its first column
  int colonne = 1;
  double passo = 0;  // twips from column to column
  // The keys of the group's words in the title of a sum and of an addend, in section "Strings".
  std::string_view chiave = {};
  std::string_view chiaveAddendo = {};
};

// A menu that shows the levels of some families below bands. Lengths are twips.
struct MenuDiLivelli {
  std::span<const Famiglia> famiglie;
  std::span<const FasciaMenu> fasce;
  Row (*pulsante)(const Livello& livello, TwipsRect posto);
  double larghezzaLivello;
  bool titolato = true;  // its exercises have a title
  double altoFasce = 960;
  double altezzaFascia = 405;
  double alto = 1440;  // of the first row of levels
};

// The levels of a group stand in the order of their rows, from the top, column after column, five
// to a column. Of more than the columns hold so, all columns take more.
inline constexpr int kLivelliPerColonna = 5;
inline constexpr double kPassoLivelli = 840;
inline constexpr double kAltezzaLivello = 675;

constexpr bool MostraLivello(const MenuDiLivelli& menu, const Livello& livello) {
  const auto offre = [&livello](Famiglia famiglia) { return TipoIn(livello, famiglia) != 0; };
  return std::ranges::any_of(menu.famiglie, offre);
}

constexpr int QuantiDelGruppo(const MenuDiLivelli& menu, Gruppo gruppo) {
  return static_cast<int>(std::ranges::count_if(
      kLivelli, [&](const Livello& l) { return l.gruppo == gruppo && MostraLivello(menu, l); }));
}

// rango: how many levels of the menu's group come before.
constexpr TwipsRect PostoLivello(const MenuDiLivelli& menu, const FasciaMenu& fascia, int rango) {
  const int inTutto = QuantiDelGruppo(menu, fascia.gruppo);
  const int perColonna =
      std::max(kLivelliPerColonna, (inTutto + fascia.colonne - 1) / fascia.colonne);
  const int colonna = rango / perColonna;
  return {fascia.sinistra + fascia.passo * colonna,
          menu.alto + kPassoLivelli * (rango % perColonna), menu.larghezzaLivello, kAltezzaLivello};
}

constexpr Row RigaFascia(const MenuDiLivelli& menu, const FasciaMenu& fascia) {
  const double larghezza = fascia.passo * (fascia.colonne - 1) + menu.larghezzaLivello;
  return fascia.etichetta.riga({fascia.sinistra, menu.altoFasce, larghezza, menu.altezzaFascia},
                               Fascia(fascia.parole));
}

constexpr std::size_t QuantiPulsanti(const MenuDiLivelli& menu) {
  std::size_t quanti = 0;
  for (const FasciaMenu& fascia : menu.fasce) {
    quanti += static_cast<std::size_t>(QuantiDelGruppo(menu, fascia.gruppo));
  }
  return quanti;
}

// Every level of the menu's families stands below the band of its group.
constexpr bool HaFasce(const MenuDiLivelli& menu) {
  return std::ranges::all_of(kLivelli, [&menu](const Livello& l) {
    return !MostraLivello(menu, l) ||
           std::ranges::count(menu.fasce, l.gruppo, &FasciaMenu::gruppo) == 1;
  });
}

// Every level of a menu with titles has its group's words.
constexpr bool HaTitoli(const MenuDiLivelli& menu) {
  const auto parole = [](const FasciaMenu& fascia, const Livello& l) {
    return l.numeri.addendo != 0 ? fascia.chiaveAddendo : fascia.chiave;
  };
  return std::ranges::all_of(menu.fasce, [&](const FasciaMenu& fascia) {
    return std::ranges::all_of(kLivelli, [&](const Livello& l) {
      return l.gruppo != fascia.gruppo || !MostraLivello(menu, l) || !parole(fascia, l).empty();
    });
  });
}

// Writes the rows of the levels below a band; where they end.
constexpr auto ScriviLivelli(const MenuDiLivelli& menu, const FasciaMenu& fascia, auto riga) {
  int rango = 0;
  for (const Livello& livello : kLivelli) {
    if (livello.gruppo != fascia.gruppo || !MostraLivello(menu, livello)) continue;
    *riga++ = menu.pulsante(livello, PostoLivello(menu, fascia, rango));
    ++rango;
  }
  return riga;
}

// The rows of a menu's levels alone.
template <const MenuDiLivelli& kMenu>
constexpr auto PulsantiDeiLivelli() {
  std::array<Row, QuantiPulsanti(kMenu)> righe{};
  auto riga = righe.begin();
  for (const FasciaMenu& fascia : kMenu.fasce) riga = ScriviLivelli(kMenu, fascia, riga);
  return righe;
}

// The rows of a menu's bands, each with its levels after it.
template <const MenuDiLivelli& kMenu>
constexpr auto DisponiLivelli() {
  static_assert(HaFasce(kMenu), "a level that a menu shows has no band there");
  static_assert(!kMenu.titolato || HaTitoli(kMenu), "a group has no words for a level's title");
  std::array<Row, kMenu.fasce.size() + QuantiPulsanti(kMenu)> righe{};
  auto riga = righe.begin();
  for (const FasciaMenu& fascia : kMenu.fasce) {
    *riga++ = RigaFascia(kMenu, fascia);
    riga = ScriviLivelli(kMenu, fascia, riga);
  }
  return righe;
}

}  // namespace somme::inline programma::disegno
