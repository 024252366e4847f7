#pragma once

#include <algorithm>
#include <initializer_list>

#include "input/tastiera_scansione.h"
#include "support/banco.h"

// The hands of a pupil who has two keys, or one.
namespace prova {

// Manual scanning: Space until the key is lit, then Enter. A light that does not move, or that
// never comes there, chooses nothing and fails.
inline bool scegliAMano(Banco& banco, const somme::TastieraScansione& tastiera, int tasto) {
  for (int i = 0; i <= tastiera.numeroPulsanti(); ++i) {
    if (tastiera.pulsanteAcceso() == tasto) {
      banco.batti(Qt::Key_Return);
      return true;
    }
    banco.batti(Qt::Key_Space);
  }
  return false;
}

// The same on the keyboard with digits of a form, one key after the other.
template <class F>
bool scegliCifre(Banco& banco, const F& forma, std::initializer_list<int> tasti) {
  return std::ranges::all_of(tasti, [&](int tasto) {
    return scegliAMano(banco, forma.TastieraNumericaScansione1, tasto);
  });
}

// Automatic scanning: waits until the key is lit, then Space.
inline bool scegliAspettando(Banco& banco, const somme::TastieraScansione& tastiera, int tasto) {
  const double passo = tastiera.IntervalloScansione() / 1000.0;
  for (int i = 0; i <= tastiera.numeroPulsanti(); ++i) {
    if (tastiera.pulsanteAcceso() == tasto) {
      banco.batti(Qt::Key_Space);
      return true;
    }
    banco.tempo.advance(passo);
    QCoreApplication::processEvents();
  }
  return false;
}

}  // namespace prova
