#pragma once

#include <string_view>

#include "app/shared/stato_condiviso.h"

namespace prova {

// Leaves the shared state as a family menu would before it shows the exercise form `nome`: at a
// level at which every drawing of numbers ends, whatever has come before.
inline void ComeDalMenu(somme::StatoCondiviso& stato, std::string_view nome) {
  const auto tiene = [nome](std::string_view parte) {
    return nome.find(parte) != std::string_view::npos;
  };
  stato.LimiteEsercizio = tiene("20") ? 20 : 10;
  stato.TipoEsercizio = tiene("LU") || tiene("Abaco") ? 3 : 1;
  stato.ModalitaInput = nome.ends_with("HK")          ? somme::kHelpiKeys
                        : nome.ends_with("Scansione") ? somme::kScansioneAutomatica
                                                      : somme::kMouseTastiera;
}

}  // namespace prova
