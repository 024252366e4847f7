#include "games/partita_blocchi.h"

#include <algorithm>

#include "cases/livelli.h"
#include "platform/base/numbers.h"

namespace somme::inline giochi {

PartitaBlocchi::PartitaBlocchi(Caso& caso, const RegoleBlocchi& regole)
    : caso_(caso), regole_(regole), uniti_(regole) {}

void PartitaBlocchi::NuovoCaso(int tipo, platform::Chance& sorte) {
  fase_ = Fase::PrimoAddendo;
  tavole_ = {};
  cambio_ = 0;
  uniti_.Sgombra();
  if (const Livello* livello = LivelloDi(regole_.famiglia, tipo)) livello->genera(caso_, sorte);
}

std::optional<PartitaBlocchi::Tavola> PartitaBlocchi::InUso() const {
  if (fase_ == Fase::PrimoAddendo) return Tavola::Prima;
  if (fase_ == Fase::SecondoAddendo) return Tavola::Seconda;
  return std::nullopt;
}

std::optional<int> PartitaBlocchi::Metti(Posto specie) {
  const std::optional<Tavola> tavola = InUso();
  const bool esiste = std::ranges::find(regole_.specie, specie) != regole_.specie.end();
  if (!tavola || !esiste) return std::nullopt;
  int& quanti = tavole_[static_cast<std::size_t>(*tavola)][specie];
  if (quanti == kMassimoPerSpecie) return std::nullopt;
  return ++quanti;
}

std::optional<PartitaBlocchi::Tavola> PartitaBlocchi::Svuota() {
  const std::optional<Tavola> tavola = InUso();
  if (tavola) tavole_[static_cast<std::size_t>(*tavola)] = {};
  return tavola;
}

Esito PartitaBlocchi::Conferma() {
  const std::optional<Tavola> tavola = InUso();
  if (!tavola) return Esito::Ignorato;
  const bool prima = *tavola == Tavola::Prima;
  if (Su(*tavola).Valore() != (prima ? caso_.Addendo1 : caso_.Addendo2)) return Esito::Sbagliato;
  fase_ = prima ? Fase::SecondoAddendo : Fase::Unione;
  return Esito::PassoGiusto;
}

int PartitaBlocchi::SuEntrambe(Posto specie) const {
  return Su(Tavola::Prima)[specie] + Su(Tavola::Seconda)[specie];
}

void PartitaBlocchi::Unisci() {
  if (fase_ != Fase::Unione) return;
  Quantita quanti;
  for (const Posto specie : regole_.specie) quanti[specie] = SuEntrambe(specie);
  uniti_.Unisci(quanti);
}

void PartitaBlocchi::Prosegui() {
  if (fase_ != Fase::Unione && fase_ != Fase::CambioInCorso) return;
  while (cambio_ < regole_.cambi.size() && SuEntrambe(regole_.cambi[cambio_]) < kDieci) ++cambio_;
  fase_ = cambio_ < regole_.cambi.size() ? Fase::Cambio : Fase::Risultato;
}

std::optional<std::size_t> PartitaBlocchi::CambioDaChiedere() const {
  if (fase_ != Fase::Cambio) return std::nullopt;
  return cambio_;
}

bool PartitaBlocchi::IniziaCambio(std::size_t quale) {
  if (CambioDaChiedere() != quale) return false;
  fase_ = Fase::CambioInCorso;
  ++cambio_;
  uniti_.AvviaCambio();
  return true;
}

std::optional<int> PartitaBlocchi::CambioDetto(std::size_t quale) {
  const Posto da = regole_.cambi[quale];
  const int nuovo = SuEntrambe(Superiore(da)) + 1;
  if (!uniti_.Cambia(da, nuovo)) return std::nullopt;
  return nuovo;
}

Esito PartitaBlocchi::Rispondi(std::optional<double> numero) {
  if (fase_ != Fase::Risultato || !numero) return Esito::Ignorato;
  if (platform::toInt16(*numero) != caso_.Totale) return Esito::Sbagliato;
  return Risolvi();
}

Esito PartitaBlocchi::Risolvi() {
  if (fase_ != Fase::Risultato) return Esito::Ignorato;
  fase_ = Fase::Risolto;
  return Esito::Risolto;
}

}  // namespace somme::inline giochi
