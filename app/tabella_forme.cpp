#include "app/tabella_forme.h"

#include <algorithm>
#include <array>

#include "app/form_avvio.h"
#include "app/form_info.h"
#include "app/shared/nomi_forme.h"
#include "exercises/bars/form_barre10.h"
#include "exercises/bars/form_barre20.h"
#include "exercises/numbers/form_numeri_addendo.h"
#include "exercises/numbers/form_numeri_totale.h"

namespace somme {

namespace {

struct Voce {
  std::string_view nome;
  std::shared_ptr<platform::Form> (*crea)(Ambiente& ambiente);
};

template <class F>
std::shared_ptr<platform::Form> Crea(Ambiente& ambiente) {
  return std::make_shared<F>(ambiente);
}

constexpr auto kForme = std::to_array<Voce>({
    {forme::kFormAvvio, Crea<FormAvvio>},
    {forme::kFormInfo, Crea<FormInfo>},
    {forme::kFormNumeriTotale, Crea<FormNumeriTotale>},
    {forme::kFormNumeriAddendo, Crea<FormNumeriAddendo>},
    {forme::kFormBarre10, Crea<FormBarre10>},
    {forme::kFormBarre20, Crea<FormBarre20>},
});

// The first exercise, until a menu chooses.
std::shared_ptr<platform::Form> PrimoEsercizio(Ambiente& ambiente) {
  ambiente.stato.LimiteEsercizio = 10;
  return std::make_shared<FormBarre10>(ambiente);
}

// Where the roads to the menus lead as long as there are none.
constexpr auto kAlPostoDeiMenu = std::to_array<Voce>({
    {forme::kFormMenu, PrimoEsercizio},
    {forme::kFormMenuNumeri, Crea<FormAvvio>},
    {forme::kFormMenuBarre, Crea<FormAvvio>},
});

}  // namespace

std::shared_ptr<platform::Form> CreaForma(Ambiente& ambiente, std::string_view nome) {
  const auto uguale = [nome](const Voce& voce) { return voce.nome == nome; };
  const auto forma = std::find_if(kForme.begin(), kForme.end(), uguale);
  if (forma != kForme.end()) return forma->crea(ambiente);
  const auto strada = std::find_if(kAlPostoDeiMenu.begin(), kAlPostoDeiMenu.end(), uguale);
  return strada == kAlPostoDeiMenu.end() ? nullptr : strada->crea(ambiente);
}

std::vector<std::string_view> NomiDelleForme() {
  std::vector<std::string_view> nomi;
  for (const Voce& voce : kForme) nomi.push_back(voce.nome);
  return nomi;
}

}  // namespace somme
