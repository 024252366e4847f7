#pragma once

#include <string_view>

#include "app/shared/ambiente.h"
#include "support/schede_di_prova.h"

namespace prova {

// Whether a form stands over another and waits for an answer: a sheet, or the dialog for one.
inline bool VuoleRisposta(const somme::SchedaForma& scheda) {
  return EFoglio(scheda) || scheda.genere == somme::Genere::Dialogo;
}

// Leaves the shared state as a family menu would before it shows the exercise form `nome`: at a
// level at which every drawing of numbers ends, whatever has come before.
inline void ComeDalMenu(somme::Ambiente& ambiente, std::string_view nome) {
  using somme::Famiglia;
  using somme::Modo;
  const somme::SchedaForma scheda = somme::SchedaDi(ambiente.forme, nome);
  somme::StatoCondiviso& stato = ambiente.stato;
  stato.LimiteEsercizio = scheda.famiglia == Famiglia::Barre20 ? scheda.portata : 10;
  stato.TipoEsercizio = HaTavole(scheda) ? 3 : 1;
  stato.ModalitaInput = scheda.modo == Modo::Tocco       ? somme::kHelpiKeys
                        : scheda.modo == Modo::Scansione ? somme::kScansioneAutomatica
                                                         : somme::kMouseTastiera;
}

}  // namespace prova
