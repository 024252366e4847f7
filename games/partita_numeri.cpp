#include "games/partita_numeri.h"

namespace somme::inline giochi {

PartitaNumeri::PartitaNumeri(Caso& caso, const RegoleNumeri& regole, Zero zero)
    : caso_(caso), regole_(regole), zero_(zero) {}

std::optional<qint16> PartitaNumeri::NuovoCaso(int tipo, platform::Chance& sorte) {
  fase_ = Fase::Domanda;
  const Livello* livello = LivelloDi(regole_.famiglia, tipo);
  if (livello == nullptr) return std::nullopt;
  livello->genera(caso_, sorte);
  return livello->cifre;
}

Esito PartitaNumeri::Rispondi(double numero) {
  if (numero == 0 && zero_ == Zero::NonSiGiudica) return Esito::Ignorato;
  if (numero != Cercato()) return Esito::Sbagliato;
  fase_ = Fase::Risolto;
  return Esito::Risolto;
}

}  // namespace somme::inline giochi
