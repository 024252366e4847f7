#pragma once

#include "input/mappa_tasti.h"
#include "support/banco.h"

namespace prova {

// The pupil's hand on the sheet: a touch in the middle of a key.
inline void tocca(Banco& banco, const somme::MappaTasti& mappa, int tasto) {
  const somme::Fascia colonne = mappa.ColonneDi(tasto);
  const somme::Fascia righe = mappa.RigheDi(tasto);
  QByteArray rapporto("..1");
  rapporto[0] = char(64 + (colonne.da + colonne.a) / 2);
  rapporto[1] = char(64 + (righe.da + righe.a) / 2);
  banco.rete.manda(rapporto);
}

// Keys of the sheet with digits.
inline constexpr int kTastoCestino = 13;
inline constexpr int kTastoAiuto = 14;
inline constexpr int kTastoConferma = 15;
inline constexpr int kTastoAvanti = 16;

// A number on the sheet with digits, and its confirmation.
inline void toccaNumero(Banco& banco, const QString& cifre) {
  for (const QChar cifra : cifre) tocca(banco, somme::kMappaCifre, cifra.digitValue() + 1);
}
inline void rispondiToccando(Banco& banco, const QString& cifre) {
  toccaNumero(banco, cifre);
  tocca(banco, somme::kMappaCifre, kTastoConferma);
}

// A touch form on the screen, once HelpiKeys has answered and the box about it is closed.
template <class F>
F& apriPronta(Banco& banco, std::string_view nome) {
  F& forma = banco.apri<F>(nome);
  banco.rete.manda("OK");
  banco.messaggi.mostrati.clear();
  return forma;
}

}  // namespace prova
