#include "games/blocchi_uniti.h"

#include <algorithm>

namespace somme::inline giochi {

void BlocchiUniti::Ricomincia() {
  fino_ = {};
  tolti_ = {};
  corso_.reset();
}

void BlocchiUniti::Sgombra() {
  if (corso_) corso_->diQuestoCaso = false;
  Unisci({});
}

void BlocchiUniti::Unisci(const Quantita& quanti) {
  tolti_ = {};
  for (const Posto specie : regole_.specie) {
    const bool resta = regole_.sgombero[specie] == 0;
    fino_[specie] = std::max(resta ? fino_[specie] : 0, quanti[specie]);
  }
}

void BlocchiUniti::AvviaCambio() {
  corso_ = Corso{};
}

void BlocchiUniti::FinisciAttesa() {
  if (corso_) corso_->atteso = true;
}

bool BlocchiUniti::Cambia(Posto da, int nuovo) {
  if (corso_ && !corso_->diQuestoCaso) return false;
  if (corso_) corso_->detto = true;
  int& fino = fino_[Superiore(da)];
  fino = std::max(fino, nuovo);
  tolti_[da] = kDieci;
  return true;
}

Quantita BlocchiUniti::Quanti() const {
  Quantita quanti;
  for (const Posto specie : regole_.specie) {
    quanti[specie] = std::max(fino_[specie] - tolti_[specie], 0);
  }
  return quanti;
}

}  // namespace somme::inline giochi
