#include "games/casi_tabella.h"

#include <algorithm>
#include <array>

#include "cases/casuale.h"
#include "games/generi_tabella.h"

namespace somme::inline giochi {

namespace {

// A kind that calls one of others, as many as `quanti`, from `primo` on.
struct Miscuglio {
  int tipo;
  int primo;
  int quanti;
};

constexpr auto kMiscugli = std::to_array<Miscuglio>({{4, 0, 4}, {9, 5, 4}, {12, 10, 2}});

constexpr bool HaNumeroSuo(const GenereTabella& genere) {
  return std::ranges::count(kGeneriTabella, genere.tipo, &GenereTabella::tipo) == 1 &&
         std::ranges::count(kMiscugli, genere.tipo, &Miscuglio::tipo) == 0;
}
static_assert(std::ranges::all_of(kGeneriTabella, HaNumeroSuo),
              "two kinds of the table have one number");

CasoTabella Estrai(platform::Chance& sorte, const RegolaTabella& regola, int inPiuA) {
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
  for (const GenereTabella& genere : kGeneriTabella) {
    if (genere.tipo != tipo) continue;
    CasoTabella caso = Estrai(sorte, genere.regola, genere.regola.inPiuA);
    while (genere.regola.ripete && (caso.risultato < 0 || caso.risultato > kUltimaCella)) {
      caso = Estrai(sorte, genere.regola, 0);
    }
    return caso;
  }
  return std::nullopt;
}

}  // namespace somme::inline giochi
