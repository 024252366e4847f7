#pragma once

#include "blocchi_di_prova.h"
#include "exercises/blocks/form_lu.h"

// The form of longs and units, as its tests open it.
namespace prova {

inline constexpr qint16 kConESenzaCambio = 3;
inline const QString kSpecie = QStringLiteral("da u");

// What the level with and without carries draws for a case.
inline std::vector<SorteDiProva::Estrazione> caso(int addendo1, int addendo2) {
  const int totale = addendo1 + addendo2;
  return {{totale - 1, 99}, {addendo1, totale}};
}

inline somme::FormLU& apri(Banco& banco, int addendo1, int addendo2) {
  banco.ambiente->stato.TipoEsercizio = kConESenzaCambio;
  banco.sorte.scrivi(caso(addendo1, addendo2));
  return banco.apri<somme::FormLU>(somme::forme::kFormLU);
}

inline QString suono(const Banco& banco, const char* nome) {
  return banco.percorso(QStringLiteral("suoni/%1.wav").arg(QLatin1String(nome)));
}

inline double adesso(const Banco& banco) {
  return banco.tempo.secondsSinceMidnight();
}

}  // namespace prova
