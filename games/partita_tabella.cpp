#include "games/partita_tabella.h"

namespace somme::inline giochi {

std::optional<CasoTabella> PartitaTabella::NuovoCaso(int tipo, platform::Chance& sorte) {
  celle_.fill(Cella::Aperta);
  risolto_ = false;
  return Chiedi(tipo, sorte);
}

std::optional<CasoTabella> PartitaTabella::Chiedi(int tipo, platform::Chance& sorte) {
  const std::optional<CasoTabella> caso = EstraiCasoTabella(sorte, tipo);
  if (caso) risultato_ = caso->risultato;
  return caso;
}

Esito PartitaTabella::Scegli(int cella) {
  if (!SiPuoScegliere(cella)) return Esito::Ignorato;
  Cella& scelta = celle_[static_cast<std::size_t>(cella)];
  if (cella != risultato_) {
    scelta = Cella::Sbagliata;
    return Esito::Sbagliato;
  }
  scelta = Cella::Giusta;
  risolto_ = true;
  avanti_ = true;
  return Esito::Risolto;
}

bool PartitaTabella::HaNumero(int cella) const {
  switch (difficolta_) {
    case Difficolta::Facile:
      return true;
    case Difficolta::Media:
      return cella < kPerRiga || cella % kPerRiga == 0;
    default:
      return false;
  }
}

}  // namespace somme::inline giochi
