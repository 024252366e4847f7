#include "games/casi_tabella.h"

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
  int inPiuA = 0;  // added to the first draw of a, not to those of a repetition
  int limiteB;
  int passoB = 1;
  bool meno = false;
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
    {0, {.limiteA = 98, .limiteB = kFisso}},
    {1, {.limiteA = 90, .limiteB = kFisso, .passoB = 10}},
    {2, {.limiteA = 98, .inPiuA = -1, .limiteB = kFisso, .meno = true}},
    {3, {.limiteA = 90, .inPiuA = 10, .limiteB = kFisso, .passoB = 10, .meno = true}},
    {5, {.limiteA = 90, .limiteB = 10}},
    {6, {.limiteA = 90, .limiteB = 10, .passoB = 10, .ripete = true}},
    {7, {.limiteA = 90, .inPiuA = 10, .limiteB = 10, .meno = true}},
    {8, {.limiteA = 90, .inPiuA = 10, .limiteB = 10, .passoB = 10, .meno = true, .ripete = true}},
    {10, {.limiteA = 99, .limiteB = 99, .ripete = true}},
    {11, {.limiteA = 99, .limiteB = kFinoAdA, .meno = true}},
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
