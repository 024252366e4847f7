#pragma once

#include "app/shared/foglio_tasti.h"
#include "support/banco.h"

namespace prova {

// The pupil's hand on the sheet: a touch in the middle of a place of a keyboard.
inline void tocca(Banco& banco, const somme::Tastiera& tastiera, int posto) {
  const auto mezzo = [](const somme::Fascia& fascia) { return (fascia.da + fascia.a) / 2; };
  const somme::Zona celle = tastiera.CelleDi(posto);
  QByteArray rapporto("..1");
  rapporto[0] = char(64 + mezzo(celle.colonne));
  rapporto[1] = char(64 + mezzo(celle.righe));
  banco.rete.manda(rapporto);
}

// The sheet of the touch form on the screen.
inline const somme::FoglioTasti& foglioDavanti(Banco& banco) {
  const platform::Form& forma = *banco.ambiente->fondo.forms().current();
  return somme::FoglioDi(somme::SchedaDi(banco.ambiente->forme, forma.design().name).foglio);
}
// A touch on that sheet: on a place, also an empty one, or on a key that it has.
inline void tocca(Banco& banco, int posto) {
  tocca(banco, foglioDavanti(banco).tastiera, posto);
}
inline void tocca(Banco& banco, somme::Tasto tasto) {
  const int posto = foglioDavanti(banco).PostoDi(tasto);
  if (posto == 0) throw std::logic_error("the sheet has no such key");
  tocca(banco, posto);
}

// A number on a sheet with digits, and its confirmation.
inline void toccaNumero(Banco& banco, const QString& cifre) {
  for (const QChar cifra : cifre) tocca(banco, somme::TastoCifra(cifra.digitValue()));
}
inline void rispondiToccando(Banco& banco, const QString& cifre) {
  toccaNumero(banco, cifre);
  tocca(banco, somme::Tasto::Conferma);
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
