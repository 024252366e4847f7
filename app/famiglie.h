#pragma once

#include "app/form_menu_abaco.h"
#include "app/form_menu_numeri.h"
#include "app/form_menu_plu.h"
#include "app/menu_di_scelte.h"
#include "app/righe_forme.h"
#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "exercises/abacus/forma_abaco_hk.h"
#include "exercises/abacus/forma_abaco_scansione.h"
#include "exercises/abacus/forma_abaco_tastiera.h"
#include "exercises/bars/forma_barre_hk.h"
#include "exercises/bars/forma_barre_pulsanti.h"
#include "exercises/bars/forma_barre_scansione.h"
#include "exercises/bars/forma_barre_tastiera.h"
#include "exercises/blocks/forma_blocchi_hk.h"
#include "exercises/blocks/forma_blocchi_scansione.h"
#include "exercises/blocks/forma_blocchi_tastiera.h"
#include "exercises/numbers/forma_numeri_hk.h"
#include "exercises/numbers/forma_numeri_scansione.h"
#include "exercises/numbers/forma_numeri_tastiera.h"
#include "exercises/table/form_tabella.h"
#include "games/generi_tabella.h"

// All that the families of exercises are to the program: their menus, their forms, and the buttons
// of the main menu that lead to them. For the table of forms.
namespace somme::inline programma::famiglie {

using namespace colori;

inline constexpr auto kScelteBarre = std::to_array<Scelta>({
    {"Command2", -1, "Fino al 10", "livello_barre_10", Famiglia::Barre10},
    {"Command4", -1, "Fino al 20", "livello_barre_20", Famiglia::Barre20},
});
inline constexpr MenuDiScelte kMenuBarre{.nome = "FormMenuBarre",
                                         .intestazione = "Uso delle barre",
                                         .tinta = kTintaBarre,
                                         .scelte = kScelteBarre,
                                         .sinistra = 1560,
                                         .larghezza = 3300,
                                         .altezza = 5880,
                                         .indietro = {1560, 4440, 3300, 1155}};

constexpr bool SiOffre(const GenereTabella& genere) {
  return !genere.didascalia.empty();
}
// The kinds of the table that have words; the index of a button is the kind's number.
inline constexpr auto kScelteTabella = [] {
  std::array<Scelta, std::ranges::count_if(kGeneriTabella, SiOffre)> scelte{};
  for (auto scelta = scelte.begin(); const GenereTabella& genere : kGeneriTabella) {
    if (!SiOffre(genere)) continue;
    *scelta++ = {"Command2",      genere.tipo,       genere.didascalia,
                 genere.immagine, Famiglia::Tabella, genere.tipo};
  }
  return scelte;
}();
inline constexpr MenuDiScelte kMenuTabella{.nome = "FormMenuTabella",
                                           .intestazione = "Uso della tabella",
                                           .tinta = kTintaTabella,
                                           .scelte = kScelteTabella,
                                           .sinistra = 240,
                                           .larghezza = 2580,
                                           .altezza = 6420,
                                           .indietro = {3600, 5040, 2580, 1155}};

// In the order of the Tab key.
inline constexpr auto kNelMenu = std::to_array<VoceFamiglia>({
    {"Command2", 240, 360, "Uso delle barre", "menu_barre", kTintaBarre, Famiglia::Barre10,
     kMenuBarre.nome},
    {"Command6", 3480, 360, "Tabella", "menu_tabella", kTintaTabella, Famiglia::Tabella,
     kMenuTabella.nome},
    {"Command4", 240, 1680, "Piatti, lunghi, unità", "menu_blocchi", kTintaBlocchi,
     Famiglia::BlocchiDecine, forme::kFormMenuPLU},
    {"Command3", 3480, 1680, "Solo numeri", "menu_numeri", kTintaNumeri, Famiglia::NumeriTotale,
     forme::kFormMenuNumeri},
    {"Command5", 240, 3000, "Abaco", "menu_abaco", kTintaAbaco, Famiglia::Abaco,
     forme::kFormMenuAbaco},
});

inline constexpr auto kMenu = std::to_array<SchedaForma>({
    Menu<FormMenuNumeri>(forme::kFormMenuNumeri),
    Menu<FormMenuAbaco>(forme::kFormMenuAbaco),
    Menu<FormMenuPLU>(forme::kFormMenuPLU),
    MenuDi<kMenuBarre>(),
    MenuDi<kMenuTabella>(),
});

// A family that has levels goes as far as they do.
constexpr Percorso DeiLivelli(Famiglia famiglia, std::string_view menu) {
  return {famiglia, Massimo(famiglia), menu};
}
inline constexpr Percorso kNumeriTotale =
    DeiLivelli(Famiglia::NumeriTotale, forme::kFormMenuNumeri);
inline constexpr Percorso kNumeriAddendo =
    DeiLivelli(Famiglia::NumeriAddendo, forme::kFormMenuNumeri);
inline constexpr Percorso kBarre10{Famiglia::Barre10, PartitaBarre::kFinoA10, kMenuBarre.nome};
inline constexpr Percorso kBarre20{Famiglia::Barre20, PartitaBarre::kFinoA20, kMenuBarre.nome};
inline constexpr Percorso kBlocchiDecine = DeiLivelli(Famiglia::BlocchiDecine, forme::kFormMenuPLU);
inline constexpr Percorso kBlocchiCentinaia =
    DeiLivelli(Famiglia::BlocchiCentinaia, forme::kFormMenuPLU);
inline constexpr Percorso kAbaco = DeiLivelli(Famiglia::Abaco, forme::kFormMenu);
inline constexpr Percorso kTabella{Famiglia::Tabella, kUltimaCella, kMenuTabella.nome};

inline constexpr auto kEsercizi = std::to_array<SchedaForma>({
    Esercizio<FormaNumeriTastiera, kTrovaTotale>("FormNumeriTotale", kNumeriTotale),
    Esercizio<FormaNumeriScansione, kTrovaTotale>("FormNumeriTotaleScansione", kNumeriTotale,
                                                  Modo::Scansione),
    Esercizio<FormaNumeriHK, kTrovaTotale>("FormNumeriTotaleHK", kNumeriTotale, Modo::Tocco,
                                           forme::kFormStampaFoglioNumeri2),
    Esercizio<FormaNumeriTastiera, kTrovaAddendo>("FormNumeriAddendo", kNumeriAddendo),
    Esercizio<FormaNumeriScansione, kTrovaAddendo>("FormNumeriAddendoScansione", kNumeriAddendo,
                                                   Modo::Scansione),
    Esercizio<FormaNumeriHK, kTrovaAddendo>("FormNumeriAddendoHK", kNumeriAddendo, Modo::Tocco,
                                            forme::kFormStampaFoglioNumeri2),
    Esercizio<FormaBarrePulsanti, kBarrePulsanti10>("FormBarre10", kBarre10),
    Esercizio<FormaBarreTastiera, kBarreTastiera10>(forme::kFormBarre10Tastiera, kBarre10),
    Esercizio<FormaBarreScansione, kBarreScansione10>("FormBarre10Scansione", kBarre10,
                                                      Modo::Scansione),
    Esercizio<FormaBarreHK, kBarreHK10>("FormBarre10HK", kBarre10, Modo::Tocco,
                                        forme::kFormStampaFoglioNumeri),
    Esercizio<FormaBarreTastiera, kBarreTastiera20>("FormBarre20", kBarre20),
    Esercizio<FormaBarreScansione, kBarreScansione20>("FormBarre20Scansione", kBarre20,
                                                      Modo::Scansione),
    Esercizio<FormaBarreHK, kBarreHK20>("FormBarre20HK", kBarre20, Modo::Tocco,
                                        forme::kFormStampaFoglioNumeri),
    Esercizio<FormaBlocchiTastiera, kBlocchiTastiera99>("FormLU", kBlocchiDecine),
    Esercizio<FormaBlocchiScansione, kBlocchiScansione99>("FormLUScansione", kBlocchiDecine,
                                                          Modo::Scansione),
    Esercizio<FormaBlocchiHK, kBlocchiHK99>("FormLUHK", kBlocchiDecine, Modo::Tocco,
                                            forme::kFormStampaLU),
    Esercizio<FormaBlocchiTastiera, kBlocchiTastiera999>("FormHLU", kBlocchiCentinaia),
    Esercizio<FormaBlocchiScansione, kBlocchiScansione999>("FormHLUScansione", kBlocchiCentinaia,
                                                           Modo::Scansione),
    Esercizio<FormaBlocchiHK, kBlocchiHK999>("FormHLUHK", kBlocchiCentinaia, Modo::Tocco,
                                             forme::kFormStampaPLU),
    Esercizio<FormaAbacoTastiera>("FormAbaco", kAbaco),
    Esercizio<FormaAbacoScansione>("FormAbacoScansione", kAbaco, Modo::Scansione),
    Esercizio<FormaAbacoHK>("FormAbacoHK", kAbaco, Modo::Tocco, forme::kFormStampaAbaco),
    Esercizio<FormTabella>("FormTabella", kTabella),
});

}  // namespace somme::inline programma::famiglie
