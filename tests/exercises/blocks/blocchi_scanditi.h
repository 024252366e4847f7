#pragma once

#include "blocchi_di_prova.h"
#include "exercises/blocks/forma_blocchi_scansione.h"
#include "support/scansione_di_prova.h"

// The blocks by scanning, as a pupil with one or two keys uses them.
namespace prova {
// The tests of other forms, in the same program, have others of these names.
namespace scanditi {

inline constexpr int kConferma = somme::TastieraNumericaScansione::kConferma;
inline constexpr int kCestino = somme::TastieraNumericaScansione::kCestino;
inline constexpr int kAvanti = somme::TastieraNumericaScansione::kAvanti;

inline somme::FormaBlocchiScansione& apriLU(Banco& banco, int addendo1, int addendo2,
                                            qint16 modo = 1) {
  banco.ambiente->stato.TipoEsercizio = kConESenzaCambio;
  banco.ambiente->stato.ModalitaInput = modo;
  banco.sorte.scrivi(casoLU(addendo1, addendo2));
  return banco.apri<somme::FormaBlocchiScansione>(somme::forme::kFormLUScansione);
}
inline somme::FormaBlocchiScansione& apriHLU(Banco& banco, int addendo1, int addendo2,
                                             qint16 modo = 1) {
  banco.ambiente->stato.TipoEsercizio = kConESenzaCambi;
  banco.ambiente->stato.ModalitaInput = modo;
  banco.sorte.scrivi(casoHLU(addendo1, addendo2));
  return banco.apri<somme::FormaBlocchiScansione>(somme::forme::kFormHLUScansione);
}

// The pupil's way of choosing on a keyboard: by hand, or by waiting.
inline bool scegli(Banco& banco, const somme::TastieraScansione& tastiera, int tasto) {
  return banco.ambiente->stato.ModalitaInput == 1 ? scegliAMano(banco, tastiera, tasto)
                                                  : scegliAspettando(banco, tastiera, tasto);
}
inline bool metti(Banco& banco, const somme::FormaBlocchiScansione& forma, int tasto,
                  int volte = 1) {
  for (int i = 0; i < volte; ++i) {
    if (!scegli(banco, forma.TastieraHDUScansione1, tasto)) return false;
  }
  return true;
}
// Builds a number on the board in use and has it judged.
inline bool costruisciScandendo(Banco& banco, const somme::FormaBlocchiScansione& forma,
                                int numero) {
  return metti(banco, forma, somme::TastieraHDUScansione::kCentinaia, numero / 100) &&
         metti(banco, forma, somme::TastieraHDUScansione::kDecine, numero / 10 % 10) &&
         metti(banco, forma, somme::TastieraHDUScansione::kUnita, numero % 10) &&
         metti(banco, forma, somme::TastieraHDUScansione::kConferma);
}
inline bool unisciScandendo(Banco& banco, const somme::FormaBlocchiScansione& forma) {
  return costruisciScandendo(banco, forma, banco.ambiente->stato.Addendo1) &&
         costruisciScandendo(banco, forma, banco.ambiente->stato.Addendo2);
}
inline bool scriviScandendo(Banco& banco, const somme::FormaBlocchiScansione& forma,
                            const QString& cifre) {
  return std::all_of(cifre.begin(), cifre.end(), [&](QChar cifra) {
    return scegli(banco, forma.TastieraNumericaScansione1, cifra.digitValue());
  });
}
inline bool rispondiScandendo(Banco& banco, const somme::FormaBlocchiScansione& forma,
                              const QString& cifre) {
  return scriviScandendo(banco, forma, cifre) &&
         scegli(banco, forma.TastieraNumericaScansione1, kConferma);
}

}  // namespace scanditi
}  // namespace prova
