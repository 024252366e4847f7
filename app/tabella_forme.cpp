#include "app/tabella_forme.h"

#include <algorithm>
#include <array>

#include "app/famiglie.h"
#include "app/form_avvio.h"
#include "app/form_info.h"
#include "app/form_menu.h"
#include "app/shared/foglio_tasti.h"
#include "printing/foglio_calibrazione.h"
#include "printing/frm_avvia_stampa.h"

namespace somme::inline programma {

namespace {

constexpr auto kPagine = std::to_array<SchedaForma>({
    Pagina<FormAvvio>(forme::kFormAvvio),
    Pagina<FormInfo>(forme::kFormInfo),
    Pagina<FormMenu>(forme::kFormMenu),
});

constexpr SchedaForma Foglio(std::string_view nome) {
  return {nome, Crea<FoglioTastiera>, Genere::Foglio};
}
constexpr SchedaForma Calibrazione(std::string_view nome) {
  return {nome, Crea<FoglioCalibrazione>, Genere::Calibrazione};
}
constexpr auto kStampe = std::to_array<SchedaForma>({
    Foglio(forme::kFormStampaFoglioNumeri),
    Foglio(forme::kFormStampaFoglioNumeri2),
    Foglio(forme::kFormStampaLU),
    Foglio(forme::kFormStampaPLU),
    Foglio(forme::kFormStampaAbaco),
    Calibrazione(forme::kFormStampaFoglio4),
    Calibrazione(forme::kFormStampaFoglio1),
    {forme::kFrmAvviaStampa, Crea<frmAvviaStampa>, Genere::Dialogo},
});

// All rows, in the order of the tables.
constexpr auto kForme = [] {
  std::array<SchedaForma,
             kPagine.size() + famiglie::kMenu.size() + famiglie::kEsercizi.size() + kStampe.size()>
      tutte{};
  auto dove = tutte.begin();
  for (const TabellaForme tavola : {TabellaForme(kPagine), TabellaForme(famiglie::kMenu),
                                    TabellaForme(famiglie::kEsercizi), TabellaForme(kStampe)}) {
    dove = std::ranges::copy(tavola, dove).out;
  }
  return tutte;
}();

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

constexpr bool Conduce(const VoceFamiglia& voce) {
  const auto alSuoPosto = [&voce](const VoceFamiglia& altra) {
    return altra.sinistra == voce.sinistra && altra.alto == voce.alto;
  };
  return Quante(voce.forma) == 1 &&
         std::ranges::count(famiglie::kNelMenu, voce.pulsante, &VoceFamiglia::pulsante) == 1 &&
         std::ranges::count_if(famiglie::kNelMenu, alSuoPosto) == 1;
}
static_assert(std::ranges::all_of(famiglie::kNelMenu, Conduce),
              "a family's button lies over another's, has its name, or leads nowhere");

}  // namespace

std::span<const VoceFamiglia> LeFamiglie() {
  return famiglie::kNelMenu;
}

TabellaForme LeForme() {
  return kForme;
}

}  // namespace somme::inline programma
