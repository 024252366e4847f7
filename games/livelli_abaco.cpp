#include "games/livelli_abaco.h"

namespace somme::inline giochi {

std::optional<bool> HaPalline(int tipo, Posto posto) {
  if (posto == Posto::Unita || posto == Posto::Decine) return true;
  const Livello* livello = LivelloDi(Famiglia::Abaco, tipo);
  if (livello == nullptr) return std::nullopt;
  return posto == Posto::Migliaia ? livello->gruppo == Gruppo::Entro9999
                                  : livello->gruppo != Gruppo::Entro99;
}

std::optional<qint16> CifreDellaRisposta(int tipo) {
  const Livello* livello = LivelloDi(Famiglia::Abaco, tipo);
  if (livello == nullptr) return std::nullopt;
  return livello->cifre;
}

std::optional<PerFreccia> FrecceDelLivello(int tipo) {
  const Livello* livello = LivelloDi(Famiglia::Abaco, tipo);
  if (livello == nullptr) return std::nullopt;
  const auto [UDa, DaH, HK] = livello->abaco.frecce;
  return PerFreccia{UDa, DaH, HK};
}

}  // namespace somme::inline giochi
