#include "app/tabella_forme.h"

#include <algorithm>
#include <array>

#include "app/form_avvio.h"
#include "app/form_info.h"
#include "app/form_menu.h"
#include "app/form_menu_abaco.h"
#include "app/form_menu_barre.h"
#include "app/form_menu_numeri.h"
#include "app/form_menu_plu.h"
#include "app/form_menu_tabella.h"
#include "app/shared/nomi_forme.h"
#include "exercises/abacus/form_abaco.h"
#include "exercises/abacus/form_abaco_hk.h"
#include "exercises/abacus/form_abaco_scansione.h"
#include "exercises/bars/form_barre10.h"
#include "exercises/bars/form_barre10_hk.h"
#include "exercises/bars/form_barre10_scansione.h"
#include "exercises/bars/form_barre10_tastiera.h"
#include "exercises/bars/form_barre20.h"
#include "exercises/bars/form_barre20_hk.h"
#include "exercises/bars/form_barre20_scansione.h"
#include "exercises/blocks/form_hlu.h"
#include "exercises/blocks/form_hlu_hk.h"
#include "exercises/blocks/form_hlu_scansione.h"
#include "exercises/blocks/form_lu.h"
#include "exercises/blocks/form_lu_hk.h"
#include "exercises/blocks/form_lu_scansione.h"
#include "exercises/numbers/form_numeri_addendo.h"
#include "exercises/numbers/form_numeri_addendo_hk.h"
#include "exercises/numbers/form_numeri_addendo_scansione.h"
#include "exercises/numbers/form_numeri_totale.h"
#include "exercises/numbers/form_numeri_totale_hk.h"
#include "exercises/numbers/form_numeri_totale_scansione.h"
#include "exercises/table/form_tabella.h"
#include "printing/form_stampa_abaco.h"
#include "printing/form_stampa_foglio1.h"
#include "printing/form_stampa_foglio4.h"
#include "printing/form_stampa_foglio_numeri.h"
#include "printing/form_stampa_foglio_numeri2.h"
#include "printing/form_stampa_lu.h"
#include "printing/form_stampa_plu.h"
#include "printing/frm_avvia_stampa.h"

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
    {forme::kFormMenu, Crea<FormMenu>},
    {forme::kFormMenuNumeri, Crea<FormMenuNumeri>},
    {forme::kFormMenuAbaco, Crea<FormMenuAbaco>},
    {forme::kFormMenuPLU, Crea<FormMenuPLU>},
    {forme::kFormMenuBarre, Crea<FormMenuBarre>},
    {forme::kFormMenuTabella, Crea<FormMenuTabella>},
    {forme::kFormNumeriTotale, Crea<FormNumeriTotale>},
    {forme::kFormNumeriTotaleScansione, Crea<FormNumeriTotaleScansione>},
    {forme::kFormNumeriTotaleHK, Crea<FormNumeriTotaleHK>},
    {forme::kFormNumeriAddendo, Crea<FormNumeriAddendo>},
    {forme::kFormNumeriAddendoScansione, Crea<FormNumeriAddendoScansione>},
    {forme::kFormNumeriAddendoHK, Crea<FormNumeriAddendoHK>},
    {forme::kFormBarre10, Crea<FormBarre10>},
    {forme::kFormBarre10Tastiera, Crea<FormBarre10Tastiera>},
    {forme::kFormBarre10Scansione, Crea<FormBarre10Scansione>},
    {forme::kFormBarre10HK, Crea<FormBarre10HK>},
    {forme::kFormBarre20, Crea<FormBarre20>},
    {forme::kFormBarre20Scansione, Crea<FormBarre20Scansione>},
    {forme::kFormBarre20HK, Crea<FormBarre20HK>},
    {forme::kFormLU, Crea<FormLU>},
    {forme::kFormLUScansione, Crea<FormLUScansione>},
    {forme::kFormLUHK, Crea<FormLUHK>},
    {forme::kFormHLU, Crea<FormHLU>},
    {forme::kFormHLUScansione, Crea<FormHLUScansione>},
    {forme::kFormHLUHK, Crea<FormHLUHK>},
    {forme::kFormAbaco, Crea<FormAbaco>},
    {forme::kFormAbacoScansione, Crea<FormAbacoScansione>},
    {forme::kFormAbacoHK, Crea<FormAbacoHK>},
    {forme::kFormTabella, Crea<FormTabella>},
    {forme::kFormStampaFoglioNumeri, Crea<FormStampaFoglioNumeri>},
    {forme::kFormStampaFoglioNumeri2, Crea<FormStampaFoglioNumeri2>},
    {forme::kFormStampaLU, Crea<FormStampaLU>},
    {forme::kFormStampaPLU, Crea<FormStampaPLU>},
    {forme::kFormStampaAbaco, Crea<FormStampaAbaco>},
    {forme::kFormStampaFoglio4, Crea<FormStampaFoglio4>},
    {forme::kFormStampaFoglio1, Crea<FormStampaFoglio1>},
    {forme::kFrmAvviaStampa, Crea<frmAvviaStampa>},
});

}  // namespace

std::shared_ptr<platform::Form> CreaForma(Ambiente& ambiente, std::string_view nome) {
  const auto uguale = [nome](const Voce& voce) { return voce.nome == nome; };
  const auto forma = std::find_if(kForme.begin(), kForme.end(), uguale);
  return forma == kForme.end() ? nullptr : forma->crea(ambiente);
}

std::vector<std::string_view> NomiDelleForme() {
  std::vector<std::string_view> nomi;
  for (const Voce& voce : kForme) nomi.push_back(voce.nome);
  return nomi;
}

}  // namespace somme
