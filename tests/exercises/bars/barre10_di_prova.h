#pragma once

#include "app/shared/nomi_forme.h"
#include "barre_di_prova.h"
#include "exercises/bars/forma_barre_pulsanti.h"
#include "support/banco.h"

// What the tests of the bars up to 10 have in common.
namespace prova {

// The form with the case `totale` = `addendo1` + rest, asking for the total.
inline somme::FormaBarrePulsanti& apriBarre10(Banco& banco, int totale, int addendo1) {
  banco.ambiente->stato.LimiteEsercizio = 10;
  banco.sorte.scrivi({{totale - 1, 10}, {addendo1, totale}});
  return banco.apri<somme::FormaBarrePulsanti>(somme::forme::kFormBarre10);
}

// The numbers that the form shows, as the pupil reads them: on the bars and in the written sum.
inline QStringList barre(somme::FormaBarrePulsanti& forma) {
  return {forma.n1.caption(), forma.n2.caption(), forma.n3.caption()};
}
inline QStringList somma(somme::FormaBarrePulsanti& forma) {
  QStringList testi;
  for (int i = 0; i < 5; ++i) testi += forma.Label4[i].caption();
  return testi;
}

}  // namespace prova
