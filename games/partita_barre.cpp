#include "games/partita_barre.h"

#include <algorithm>

#include "cases/casuale.h"
#include "platform/base/numbers.h"

namespace somme::inline giochi {

bool PartitaBarre::NuovoCaso(int tipo, int limite, platform::Chance& sorte) {
  switch (tipo) {
    case kTrovaRossa:
      ChiediTotale(limite, sorte);
      return true;
    case kTrovaGiallaVerde:
      ChiediAddendo(limite, sorte);
      return true;
    case kTrovaUna:
      if (Casuale(sorte, 2) == 0) {
        ChiediTotale(limite, sorte);
      } else {
        ChiediAddendo(limite, sorte);
      }
      return true;
    default:
      Apri();
      return false;
  }
}

void PartitaBarre::Apri() {
  fase_ = Fase::Domanda;
  scelti_.clear();
}

void PartitaBarre::ChiediTotale(int limite, platform::Chance& sorte) {
  Chiedi(Termine::Totale, limite, sorte);
}

// Which addend is drawn before the case is.
void PartitaBarre::ChiediAddendo(int limite, platform::Chance& sorte) {
  const Termine termine = Casuale(sorte, 2) == 0 ? Termine::Secondo : Termine::Primo;
  Chiedi(termine, limite, sorte);
}

// The first addend may be 0, the second never is.
void PartitaBarre::Chiedi(Termine termine, int limite, platform::Chance& sorte) {
  caso_.Totale = platform::toInt16(Casuale(sorte, limite) + 1);
  caso_.Addendo1 = platform::toInt16(Casuale(sorte, caso_.Totale));
  caso_.Addendo2 = platform::toInt16(caso_.Totale - caso_.Addendo1);
  chiesto_ = termine;
  atteso_ = Numero(termine);
  Apri();
}

qint16 PartitaBarre::Numero(Termine termine) const {
  switch (termine) {
    case Termine::Primo:
      return caso_.Addendo1;
    case Termine::Secondo:
      return caso_.Addendo2;
    default:
      return caso_.Totale;
  }
}

Esito PartitaBarre::Rispondi(std::optional<double> numero) {
  if (!numero && vuoto_ == Vuoto::Zero) numero = 0;
  if (!numero) return Esito::Ignorato;
  if (*numero != atteso_) return Esito::Sbagliato;
  fase_ = Fase::Risolto;
  return Esito::Risolto;
}

bool PartitaBarre::SiPuoScegliere(int numero) const {
  return fase_ == Fase::Domanda && std::ranges::find(scelti_, numero) == scelti_.end();
}

Esito PartitaBarre::Scegli(int numero) {
  if (!SiPuoScegliere(numero)) return Esito::Ignorato;
  scelti_.push_back(numero);
  return Rispondi(numero);
}

}  // namespace somme::inline giochi
