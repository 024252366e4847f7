#include "games/partita_abaco.h"

#include <algorithm>

namespace somme::inline giochi {

PartitaAbaco::PartitaAbaco(Caso& caso, Cambi cambi) : caso_(caso), cambi_(cambi) {}

void PartitaAbaco::Svuota() {
  inserite_ = {};
  for (auto& posto : inAttesa_) posto.fill(true);
}

void PartitaAbaco::NuovoCaso(int tipo, platform::Chance& sorte) {
  fase_ = Fase::Domanda;
  cambioInCorso_ = false;
  if (const Livello* livello = LivelloDi(Famiglia::Abaco, tipo)) livello->genera(caso_, sorte);
}

bool PartitaAbaco::InAttesa(Posto posto, int numero) const {
  return inAttesa_[static_cast<std::size_t>(posto)][static_cast<std::size_t>(numero)];
}

bool& PartitaAbaco::Attesa(Posto posto, int numero) {
  return inAttesa_[static_cast<std::size_t>(posto)][static_cast<std::size_t>(numero)];
}

void PartitaAbaco::AttivaFreccia(Posto da, bool attiva) {
  frecceAttive_[static_cast<std::size_t>(da)] = attiva;
}

bool PartitaAbaco::FrecciaAttiva(Posto da) const {
  return da != Posto::Migliaia && frecceAttive_[static_cast<std::size_t>(da)];
}

std::optional<int> PartitaAbaco::Inserisci(Posto posto, int inAttesa) {
  int& inserite = inserite_[posto];
  if (inserite > kPalline) return std::nullopt;
  Attesa(posto, inAttesa) = false;
  const int nuova = inserite++;
  if (inserite == kPalline) AttivaFreccia(posto, true);
  return nuova;
}

std::optional<PartitaAbaco::Tolta> PartitaAbaco::Rimuovi(Posto posto) {
  int& inserite = inserite_[posto];
  if (inserite == 0) return std::nullopt;
  Tolta tolta{.dalFerro = --inserite, .inAttesa = {}};
  auto& posti = inAttesa_[static_cast<std::size_t>(posto)];
  const auto libero = std::ranges::find(posti, false);
  if (libero != posti.end()) {
    *libero = true;
    tolta.inAttesa = static_cast<int>(libero - posti.begin());
  }
  if (inserite < kPalline) AttivaFreccia(posto, false);
  return tolta;
}

std::optional<int> PartitaAbaco::InserisciDaTasto(Posto posto) {
  int& inserite = inserite_[posto];
  if (inserite >= (posto == Posto::Migliaia ? kMigliaiaDaTasti : kPalline)) return std::nullopt;
  Attesa(posto, inserite) = false;
  return inserite++;
}

bool PartitaAbaco::HaUso(Posto posto) const {
  const bool sempre = posto == Posto::Unita || posto == Posto::Decine;
  return sempre || caso_.Totale >= ValoreDi(posto);
}

bool PartitaAbaco::CambiaDaSe(Posto posto) const {
  return cambi_ == Cambi::DaSe && posto != Posto::Migliaia && inserite_[posto] >= kPalline;
}

bool PartitaAbaco::IniziaCambio(Posto da) {
  const int sopra = inserite_[Superiore(da)];
  if (cambi_ == Cambi::DaSe) return sopra < kPalline;
  if (inserite_[da] < kPalline) return false;
  if (cambi_ == Cambi::Tasti) {
    cambioInCorso_ = true;
    return sopra < kPalline;
  }
  if (sopra == kPalline) return false;
  AttivaFreccia(da, false);
  return true;
}

// By themselves beads pass by their number, as keys have put them; else the last that waits does.
std::optional<int> PartitaAbaco::PallinaCheAspetta(Posto posto) const {
  if (cambi_ == Cambi::DaSe) {
    const int numero = inserite_[posto];
    return numero < kPalline ? std::optional(numero) : std::nullopt;
  }
  for (int i = kPalline - 1; i >= 0; --i) {
    if (InAttesa(posto, i)) return i;
  }
  return std::nullopt;
}

PartitaAbaco::Passaggio PartitaAbaco::Passa(Posto da) {
  const Posto a = Superiore(da);
  inAttesa_[static_cast<std::size_t>(da)].fill(true);
  const Passaggio passaggio{.nuova = inserite_[a], .presa = PallinaCheAspetta(a)};
  if (passaggio.presa) Attesa(a, *passaggio.presa) = false;
  return passaggio;
}

std::optional<Posto> PartitaAbaco::FinisciCambio(Posto da) {
  const Posto a = Superiore(da);
  inserite_[da] = 0;
  ++inserite_[a];
  cambioInCorso_ = false;
  if (inserite_[a] == kPalline) AttivaFreccia(a, true);
  return CambiaDaSe(a) ? std::optional(a) : std::nullopt;
}

Esito PartitaAbaco::Rispondi(double numero) {
  if (numero != caso_.Totale) return Esito::Sbagliato;
  fase_ = Fase::Risolto;
  return Esito::Risolto;
}

Esito PartitaAbaco::Conferma() {
  if (!SiConferma()) return Esito::Ignorato;
  return Rispondi(inserite_.Valore());
}

}  // namespace somme::inline giochi
