#include "exercises/blocks/tavola_unita.h"

#include <algorithm>

namespace somme {

void MostraBlocchi(platform::Board& filmato, const SpecieBlocchi& specie, int da, int a,
                   bool visibili) {
  constexpr int kVisibile = 7;  // of a clip's properties
  const QString valore = visibili ? QStringLiteral("1") : QStringLiteral("0");
  for (int i = da; i <= a; ++i) {
    filmato.tSetProperty(QStringLiteral("%1%2").arg(specie.clip).arg(i), kVisibile, valore);
  }
}

void TavolaUnita::Ricomincia() {
  fino_ = {};
  tolte_ = {};
  cambio_.reset();
}

// What a stretch has taken away comes back with the first frame, so the blocks are hidden after
// that. Where no stretch was broken off the movie stands where the last one has left it.
void TavolaUnita::Sgombra() {
  if (cambio_ && !(cambio_->detto && cambio_->atteso)) filmato_.gotoFrame(1);
  Unisci({});
}

void TavolaUnita::Unisci(const Quantita& quante) {
  for (const Sgombero& sgombero : esercizio_.sgombero) fino_.*sgombero.specie.quanti = 0;
  tolte_ = {};
  for (const SpecieBlocchi* specie : esercizio_.specie) {
    int& fino = fino_.*specie->quanti;
    fino = std::max(fino, quante.*specie->quanti);
  }
  NascondiGliAltri();
  Mostra();
}

void TavolaUnita::AvviaCambio(const CambioBlocchi& cambio, int caso) {
  cambio_ = {.caso = caso};
  filmato_.gotoFrame(cambio.fotogramma);
  NascondiGliAltri();
  filmato_.play();
}

// What the stretch has taken away may have come back after its word.
void TavolaUnita::FinisciAttesa() {
  if (cambio_) cambio_->atteso = true;
  NascondiGliAltri();
}

void TavolaUnita::Cambia(const CambioBlocchi& cambio, int nuovo) {
  if (cambio_) cambio_->detto = true;
  int& fino = fino_.*cambio.a.quanti;
  fino = std::max(fino, nuovo);
  tolte_.*cambio.da.quanti = blocchi::kDieci;
  MostraBlocchi(filmato_, cambio.a, nuovo, nuovo, true);
  if (cambio.tornaAlPrimo) {
    filmato_.gotoFrame(1);
    Mostra();
  }
  NascondiGliAltri();
}

Quantita TavolaUnita::Quante() const {
  Quantita quante;
  for (const SpecieBlocchi* specie : esercizio_.specie) {
    quante.*specie->quanti = std::max(fino_.*specie->quanti - tolte_.*specie->quanti, 0);
  }
  return quante;
}

void TavolaUnita::Mostra() {
  for (const SpecieBlocchi* specie : esercizio_.specie) {
    MostraBlocchi(filmato_, *specie, tolte_.*specie->quanti + 1, fino_.*specie->quanti, true);
  }
}

void TavolaUnita::NascondiGliAltri() {
  for (const auto& [specie, quanti] : esercizio_.sgombero) {
    MostraBlocchi(filmato_, specie, 1, tolte_.*specie.quanti, false);
    MostraBlocchi(filmato_, specie, fino_.*specie.quanti + 1, quanti, false);
  }
}

}  // namespace somme
