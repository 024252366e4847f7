#pragma once

#include "abaco_di_prova.h"
#include "exercises/abacus/forma_abaco_scansione.h"
#include "support/scansione_di_prova.h"

// The abacus by scanning, as a pupil with one or two keys uses it.
namespace prova {

using Valori = somme::TastieraHDUScansione;
using Cifre = somme::TastieraNumericaScansione;

struct BancoScansione : BancoDellAbaco<somme::FormaAbacoScansione> {
  explicit BancoScansione(qint16 tipo, const Caso& caso = {}, qint16 modo = 1)
      : BancoDellAbaco(somme::forme::kFormAbacoScansione, tipo, caso, modo, kFinestraPiccola) {}

  Valori& valori = forma.TastieraHDUScansione1;
  Cifre& cifre = forma.TastieraNumericaScansione1;

  // A key of the keyboard that is on the screen, so many times.
  bool scegli(int tasto, int volte = 1) {
    const bool aValori = valori.isVisible();
    for (int i = 0; i < volte; ++i) {
      const bool preso = aValori ? sceltoSu(valori, tasto) : sceltoSu(cifre, tasto);
      if (!preso) return false;
    }
    return true;
  }
  // The sum, from the keyboard of digits on the screen.
  bool rispondi(const char* numero) {
    for (const char* cifra = numero; *cifra != '\0'; ++cifra) {
      if (!scegli(*cifra - '0')) return false;
    }
    return scegli(Cifre::kConferma);
  }
  bool solaSulloSchermo(const somme::TastieraScansione& tastiera) const {
    return valori.isVisible() == (&tastiera == &valori) &&
           cifre.isVisible() == (&tastiera == &cifre) && tastiera.PictureScansione.hasFocus();
  }

 private:
  bool sceltoSu(const somme::TastieraScansione& tastiera, int tasto) {
    return ambiente->stato.ModalitaInput == 1 ? scegliAMano(*this, tastiera, tasto)
                                              : scegliAspettando(*this, tastiera, tasto);
  }
};

}  // namespace prova
