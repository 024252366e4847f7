#pragma once

#include "blocchi_di_prova.h"
#include "exercises/blocks/form_hlu.h"

// The form of flats, longs and units, as its tests open it.
namespace prova {
// The tests of other forms, in the same program, have others of these names.
inline namespace hlu {

inline const QString kSpecie = kSpecieHLU;

inline Sorte caso(int addendo1, int addendo2) {
  return casoHLU(addendo1, addendo2);
}
inline somme::FormHLU& apri(Banco& banco, int addendo1, int addendo2) {
  banco.ambiente->stato.TipoEsercizio = kConESenzaCambi;
  banco.sorte.scrivi(caso(addendo1, addendo2));
  return banco.apri<somme::FormHLU>(somme::forme::kFormHLU);
}

}  // namespace hlu
}  // namespace prova
