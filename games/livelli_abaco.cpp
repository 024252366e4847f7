#include "games/livelli_abaco.h"

namespace somme {

namespace {

// The levels, from and to, and the arrows that they show.
struct FrecceDeiLivelli {
  int da;
  int a;
  PerFreccia frecce;
};
constexpr auto kFrecce = std::to_array<FrecceDeiLivelli>({
    {1, 1, {false, false, false}},
    {2, 5, {true, false, false}},
    {6, 6, {false, false, false}},
    {7, 7, {true, false, false}},
    {8, 8, {false, true, false}},
    {9, 14, {true, true, false}},
    {15, 15, {false, false, false}},
    {16, 23, {true, true, true}},
});

}  // namespace

std::optional<bool> HaPalline(int tipo, Posto posto) {
  if (posto == Posto::Unita || posto == Posto::Decine) return true;
  const Livello* livello = LivelloDi(LivelliAbaco, tipo);
  if (livello == nullptr) return std::nullopt;
  return posto == Posto::Migliaia ? livello->gruppo == Gruppo::Entro9999
                                  : livello->gruppo != Gruppo::Entro99;
}

std::optional<qint16> CifreDellaRisposta(int tipo) {
  const Livello* livello = LivelloDi(LivelliAbaco, tipo);
  if (livello == nullptr) return std::nullopt;
  return livello->cifre;
}

std::optional<PerFreccia> FrecceDelLivello(int tipo) {
  for (const FrecceDeiLivelli& livelli : kFrecce) {
    if (tipo >= livelli.da && tipo <= livelli.a) return livelli.frecce;
  }
  return std::nullopt;
}

}  // namespace somme
