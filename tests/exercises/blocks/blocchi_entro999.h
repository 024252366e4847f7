#pragma once

#include "blocchi_di_prova.h"
#include "exercises/blocks/forma_blocchi_tastiera.h"

// The form of flats, longs and units, as its tests open it.
namespace prova {
// The tests of other forms, in the same program, have others of these names.
namespace entro999 {

inline const QString kSpecie = kSpecieHLU;

inline Sorte caso(int addendo1, int addendo2) {
  return casoHLU(addendo1, addendo2);
}
inline somme::FormaBlocchiTastiera& apri(Banco& banco, int addendo1, int addendo2) {
  banco.ambiente->stato.TipoEsercizio = kConESenzaCambi;
  banco.sorte.scrivi(caso(addendo1, addendo2));
  return banco.apri<somme::FormaBlocchiTastiera>(somme::forme::kFormHLU);
}

}  // namespace entro999
}  // namespace prova
