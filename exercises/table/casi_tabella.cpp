#include "exercises/table/casi_tabella.h"

#include <array>

#include "cases/casuale.h"

namespace somme {

namespace {

// How b is drawn, besides a plain `Casuale(limite)` times a step.
constexpr int kFisso = 0;     // b is the step
constexpr int kFinoAdA = -1;  // `Casuale(a)`

constexpr int kUltimaCella = 99;

// The rule of a kind. Its cases are repeated until the result lies on the table where `ripete` says
// so; where it does not, the result lies there by its bounds, but for kind 2, whose first operand
// can be -1 and its result -2, a cell that does not exist. Settled.
struct Regola {
  int limiteA;
  int inPiuA;  // added to the first draw of a, not to those of a repetition
  int limiteB;
  int passoB;
  bool meno;
  bool ripete = false;
};

// A kind that calls one of others, as many as `quanti`, from `primo` on.
struct Miscuglio {
  int tipo;
  int primo;
  int quanti;
};

constexpr auto kMiscugli = std::to_array<Miscuglio>({{4, 0, 4}, {9, 5, 4}, {12, 10, 2}});

struct Voce {
  int tipo;
  Regola regola;
};

constexpr auto kRegole = std::to_array<Voce>({
    {0, {98, 0, kFisso, 1, false}},
    {1, {90, 0, kFisso, 10, false}},
    {2, {98, -1, kFisso, 1, true}},
    {3, {90, 10, kFisso, 10, true}},
    {5, {90, 0, 10, 1, false}},
    {6, {90, 0, 10, 10, false, true}},
    {7, {90, 10, 10, 1, true}},
    {8, {90, 10, 10, 10, true, true}},
    {10, {99, 0, 99, 1, false, true}},
    {11, {99, 0, kFinoAdA, 1, true}},
});

CasoTabella Estrai(platform::Chance& sorte, const Regola& regola, int inPiuA) {
  CasoTabella caso;
  caso.meno = regola.meno;
  caso.a = Casuale(sorte, regola.limiteA) + inPiuA;
  if (regola.limiteB == kFisso) {
    caso.b = regola.passoB;
  } else {
    const int limite = regola.limiteB == kFinoAdA ? caso.a : regola.limiteB;
    caso.b = Casuale(sorte, limite) * regola.passoB;
  }
  caso.risultato = caso.meno ? caso.a - caso.b : caso.a + caso.b;
  return caso;
}

}  // namespace

std::optional<CasoTabella> EstraiCasoTabella(platform::Chance& sorte, int tipo) {
  for (const Miscuglio& miscuglio : kMiscugli) {
    if (miscuglio.tipo != tipo) continue;
    tipo = miscuglio.primo + Casuale(sorte, miscuglio.quanti);
    break;
  }
  for (const Voce& voce : kRegole) {
    if (voce.tipo != tipo) continue;
    CasoTabella caso = Estrai(sorte, voce.regola, voce.regola.inPiuA);
    while (voce.regola.ripete && (caso.risultato < 0 || caso.risultato > kUltimaCella)) {
      caso = Estrai(sorte, voce.regola, 0);
    }
    return caso;
  }
  return std::nullopt;
}

}  // namespace somme
