#pragma once

#include "blocchi_di_prova.h"
#include "exercises/blocks/forma_blocchi_tastiera.h"

// The form of longs and units, as its tests open it.
namespace prova {
// The tests of other forms, in the same program, have others of these names.
namespace entro99 {

inline const QString kSpecie = kSpecieLU;

inline Sorte caso(int addendo1, int addendo2) {
  return casoLU(addendo1, addendo2);
}
inline somme::FormaBlocchiTastiera& apri(Banco& banco, int addendo1, int addendo2) {
  banco.ambiente->stato.TipoEsercizio = kConESenzaCambio;
  banco.sorte.scrivi(caso(addendo1, addendo2));
  return banco.apri<somme::FormaBlocchiTastiera>(somme::forme::kFormLU);
}

inline QString suono(const Banco& banco, const char* nome) {
  return banco.percorso(QStringLiteral("suoni/%1.wav").arg(QLatin1String(nome)));
}

}  // namespace entro99
}  // namespace prova
