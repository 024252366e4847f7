#pragma once

#include "blocchi_di_prova.h"
#include "exercises/blocks/forma_blocchi_hk.h"
#include "support/tocchi.h"

// The blocks by touch, as a pupil with the sheet uses them.
namespace prova {
// The tests of other forms, in the same program, have others of these names.
namespace toccati {

// Keys of the sheet.
inline constexpr auto kH = somme::Tasto::Centinaia;
inline constexpr auto kDa = somme::Tasto::Decine;
inline constexpr auto kU = somme::Tasto::Unita;
inline constexpr auto kCambioDaH = somme::Tasto::CambioDaH;
inline constexpr auto kCambioUDa = somme::Tasto::CambioUDa;
inline constexpr auto kCestino = somme::Tasto::Cestino;
inline constexpr auto kConferma = somme::Tasto::Conferma;
inline constexpr auto kAvanti = somme::Tasto::Avanti;

inline somme::FormaBlocchiHK& apriLU(Banco& banco, int addendo1, int addendo2) {
  banco.ambiente->stato.TipoEsercizio = kConESenzaCambio;
  banco.sorte.scrivi(casoLU(addendo1, addendo2));
  return apriPronta<somme::FormaBlocchiHK>(banco, somme::forme::kFormLUHK);
}
inline somme::FormaBlocchiHK& apriHLU(Banco& banco, int addendo1, int addendo2) {
  banco.ambiente->stato.TipoEsercizio = kConESenzaCambi;
  banco.sorte.scrivi(casoHLU(addendo1, addendo2));
  return apriPronta<somme::FormaBlocchiHK>(banco, somme::forme::kFormHLUHK);
}

inline void premi(Banco& banco, somme::Tasto tasto, int volte = 1) {
  for (int i = 0; i < volte; ++i) tocca(banco, tasto);
}
inline void costruisciToccando(Banco& banco, int numero) {
  premi(banco, kH, numero / 100);
  premi(banco, kDa, numero / 10 % 10);
  premi(banco, kU, numero % 10);
  premi(banco, kConferma);
}
inline void unisciToccando(Banco& banco) {
  costruisciToccando(banco, banco.ambiente->stato.Addendo1);
  costruisciToccando(banco, banco.ambiente->stato.Addendo2);
}
// The digits on the labels, with a point for one that is hidden and a dash for one that is empty.
inline QString cifre(somme::FormaBlocchiHK& forma) {
  QString tutte;
  forma.Label4.forEach([&tutte](platform::Label& cifra) {
    tutte += !cifra.isVisible()          ? QStringLiteral(".")
             : cifra.caption().isEmpty() ? QStringLiteral("-")
                                         : cifra.caption();
  });
  return tutte;
}
inline QString scritte(somme::FormaBlocchiHK& forma) {
  QStringList tutte;
  forma.Label4.forEach([&tutte](platform::Label& cifra) { tutte += cifra.caption(); });
  return tutte.join(u'|');
}

}  // namespace toccati
}  // namespace prova
