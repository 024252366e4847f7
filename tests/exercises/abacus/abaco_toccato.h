#pragma once

#include "abaco_di_prova.h"
#include "exercises/abacus/forma_abaco_hk.h"
#include "support/tocchi.h"

// The abacus by touch, as a pupil with the sheet uses it.
namespace prova {

struct BancoHK : BancoDellAbaco<somme::FormaAbacoHK> {
  explicit BancoHK(qint16 tipo, const Caso& caso = {})
      : BancoDellAbaco(somme::forme::kFormAbacoHK, tipo, caso, 3, kFinestraPiccola) {
    rete.manda("OK");
    messaggi.mostrati.clear();
  }

  // Keys of the sheet, by name.
  void tasto(somme::Tasto quale, int volte = 1) {
    for (int i = 0; i < volte; ++i) prova::tocca(*this, quale);
  }
  // A place of the sheet, with a key or without.
  void posto(int quale) { prova::tocca(*this, quale); }
  // The digits of the sum that show, with a dot for each that does not.
  [[nodiscard]] QString cifre() const {
    QString testo;
    for (int i = 0; i < 4; ++i) {
      testo += forma.Label2[i].isVisible() ? forma.Label2[i].caption() : QStringLiteral(".");
    }
    return testo;
  }
};

}  // namespace prova
