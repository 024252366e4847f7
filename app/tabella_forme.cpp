#include "app/tabella_forme.h"

#include <algorithm>
#include <array>
#include <type_traits>

#include "app/form_avvio.h"
#include "app/form_info.h"
#include "app/form_menu.h"
#include "app/form_menu_abaco.h"
#include "app/form_menu_barre.h"
#include "app/form_menu_numeri.h"
#include "app/form_menu_plu.h"
#include "app/form_menu_tabella.h"
#include "app/shared/foglio_tasti.h"
#include "app/shared/nomi_forme.h"
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
#include "printing/foglio_calibrazione.h"
#include "printing/frm_avvia_stampa.h"

namespace somme::inline programma {

namespace {

// varianti: what a class that makes several forms is to make; it gets the form's name, too.
template <class F, const auto&... varianti>
std::shared_ptr<platform::Form> Crea(Ambiente& ambiente, std::string_view nome) {
  if constexpr (std::is_constructible_v<F, Ambiente&>) {
    return std::make_shared<F>(ambiente);
  } else {
    return std::make_shared<F>(ambiente, nome, varianti...);
  }
}

template <class F>
constexpr SchedaForma Pagina(std::string_view nome) {
  return {nome, Crea<F>, Genere::Pagina};
}
template <class F>
constexpr SchedaForma Menu(std::string_view nome) {
  return {nome, Crea<F>, Genere::Menu};
}
constexpr SchedaForma Foglio(std::string_view nome) {
  return {nome, Crea<FoglioTastiera>, Genere::Foglio};
}
constexpr SchedaForma Calibrazione(std::string_view nome) {
  return {nome, Crea<FoglioCalibrazione>, Genere::Calibrazione};
}

// What the forms of a family in one range have in common.
struct Percorso {
  Famiglia famiglia;
  qint32 portata;
  std::string_view menu;
};
constexpr Percorso kNumeriTotale{Famiglia::NumeriTotale, 9999, forme::kFormMenuNumeri};
constexpr Percorso kNumeriAddendo{Famiglia::NumeriAddendo, 20, forme::kFormMenuNumeri};
constexpr Percorso kBarre10{Famiglia::Barre10, 10, forme::kFormMenuBarre};
constexpr Percorso kBarre20{Famiglia::Barre20, 20, forme::kFormMenuBarre};
constexpr Percorso kBlocchiDecine{Famiglia::BlocchiDecine, 99, forme::kFormMenuPLU};
constexpr Percorso kBlocchiCentinaia{Famiglia::BlocchiCentinaia, 999, forme::kFormMenuPLU};
constexpr Percorso kAbaco{Famiglia::Abaco, 9999, forme::kFormMenu};
constexpr Percorso kTabella{Famiglia::Tabella, 99, forme::kFormMenuTabella};

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

constexpr auto kForme = std::to_array<SchedaForma>({
    Pagina<FormAvvio>(forme::kFormAvvio),
    Pagina<FormInfo>(forme::kFormInfo),
    Pagina<FormMenu>(forme::kFormMenu),
    Menu<FormMenuNumeri>(forme::kFormMenuNumeri),
    Menu<FormMenuAbaco>(forme::kFormMenuAbaco),
    Menu<FormMenuPLU>(forme::kFormMenuPLU),
    Menu<FormMenuBarre>(forme::kFormMenuBarre),
    Menu<FormMenuTabella>(forme::kFormMenuTabella),
    Esercizio<FormaNumeriTastiera, kTrovaTotale>(forme::kFormNumeriTotale, kNumeriTotale),
    Esercizio<FormaNumeriScansione, kTrovaTotale>(forme::kFormNumeriTotaleScansione, kNumeriTotale,
                                                  Modo::Scansione),
    Esercizio<FormaNumeriHK, kTrovaTotale>(forme::kFormNumeriTotaleHK, kNumeriTotale, Modo::Tocco,
                                           forme::kFormStampaFoglioNumeri2),
    Esercizio<FormaNumeriTastiera, kTrovaAddendo>(forme::kFormNumeriAddendo, kNumeriAddendo),
    Esercizio<FormaNumeriScansione, kTrovaAddendo>(forme::kFormNumeriAddendoScansione,
                                                   kNumeriAddendo, Modo::Scansione),
    Esercizio<FormaNumeriHK, kTrovaAddendo>(forme::kFormNumeriAddendoHK, kNumeriAddendo,
                                            Modo::Tocco, forme::kFormStampaFoglioNumeri2),
    Esercizio<FormaBarrePulsanti, kBarrePulsanti10>(forme::kFormBarre10, kBarre10),
    Esercizio<FormaBarreTastiera, kBarreTastiera10>(forme::kFormBarre10Tastiera, kBarre10),
    Esercizio<FormaBarreScansione, kBarreScansione10>(forme::kFormBarre10Scansione, kBarre10,
                                                      Modo::Scansione),
    Esercizio<FormaBarreHK, kBarreHK10>(forme::kFormBarre10HK, kBarre10, Modo::Tocco,
                                        forme::kFormStampaFoglioNumeri),
    Esercizio<FormaBarreTastiera, kBarreTastiera20>(forme::kFormBarre20, kBarre20),
    Esercizio<FormaBarreScansione, kBarreScansione20>(forme::kFormBarre20Scansione, kBarre20,
                                                      Modo::Scansione),
    Esercizio<FormaBarreHK, kBarreHK20>(forme::kFormBarre20HK, kBarre20, Modo::Tocco,
                                        forme::kFormStampaFoglioNumeri),
    Esercizio<FormaBlocchiTastiera, kBlocchiTastiera99>(forme::kFormLU, kBlocchiDecine),
    Esercizio<FormaBlocchiScansione, kBlocchiScansione99>(forme::kFormLUScansione, kBlocchiDecine,
                                                          Modo::Scansione),
    Esercizio<FormaBlocchiHK, kBlocchiHK99>(forme::kFormLUHK, kBlocchiDecine, Modo::Tocco,
                                            forme::kFormStampaLU),
    Esercizio<FormaBlocchiTastiera, kBlocchiTastiera999>(forme::kFormHLU, kBlocchiCentinaia),
    Esercizio<FormaBlocchiScansione, kBlocchiScansione999>(forme::kFormHLUScansione,
                                                           kBlocchiCentinaia, Modo::Scansione),
    Esercizio<FormaBlocchiHK, kBlocchiHK999>(forme::kFormHLUHK, kBlocchiCentinaia, Modo::Tocco,
                                             forme::kFormStampaPLU),
    Esercizio<FormaAbacoTastiera>(forme::kFormAbaco, kAbaco),
    Esercizio<FormaAbacoScansione>(forme::kFormAbacoScansione, kAbaco, Modo::Scansione),
    Esercizio<FormaAbacoHK>(forme::kFormAbacoHK, kAbaco, Modo::Tocco, forme::kFormStampaAbaco),
    Esercizio<FormTabella>(forme::kFormTabella, kTabella),
    Foglio(forme::kFormStampaFoglioNumeri),
    Foglio(forme::kFormStampaFoglioNumeri2),
    Foglio(forme::kFormStampaLU),
    Foglio(forme::kFormStampaPLU),
    Foglio(forme::kFormStampaAbaco),
    Calibrazione(forme::kFormStampaFoglio4),
    Calibrazione(forme::kFormStampaFoglio1),
    {forme::kFrmAvviaStampa, Crea<frmAvviaStampa>, Genere::Dialogo},
});

constexpr auto Quante(std::string_view nome) {
  return std::ranges::count(kForme, nome, &SchedaForma::nome);
}

// Rows that contradict one another do not compile.
constexpr bool SiTiene(const SchedaForma& scheda) {
  const bool esercizio = scheda.genere == Genere::Esercizio;
  if (esercizio != (scheda.famiglia != Famiglia::Nessuna)) return false;
  if (esercizio != (scheda.portata > 0)) return false;
  if (Quante(scheda.nome) != 1 || (esercizio && Quante(scheda.menu) != 1)) return false;
  if ((scheda.modo == Modo::Tocco) == scheda.foglio.empty()) return false;
  if (EFoglio(scheda) && std::ranges::count(kFogliTasti, scheda.nome, &FoglioTasti::nome) != 1) {
    return false;
  }
  return scheda.foglio.empty() || SchedaDi(kForme, scheda.foglio).genere == Genere::Foglio;
}
static_assert(std::ranges::all_of(kForme, SiTiene));

}  // namespace

TabellaForme LeForme() {
  return kForme;
}

std::vector<std::string_view> NomiDelleForme() {
  std::vector<std::string_view> nomi;
  nomi.reserve(kForme.size());
  for (const SchedaForma& scheda : kForme) nomi.push_back(scheda.nome);
  return nomi;
}

}  // namespace somme::inline programma
