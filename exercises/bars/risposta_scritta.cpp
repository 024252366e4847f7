#include "exercises/bars/risposta_scritta.h"

#include "exercises/bars/forma_barre.h"
#include "exercises/core/testo_cifre.h"

namespace somme::inline barre {

RispostaScritta::RispostaScritta(FormaBarre& forma, platform::TextBox& casella,
                                 platform::Button& aiuto, platform::Button& avanti)
    : forma_(forma), casella_(casella), avanti_(avanti), comandi_(forma, aiuto, avanti) {
  RaccogliCifre(casella, [this] { Controlla(); });
}

void RispostaScritta::AlCaricamento() {
  comandi_.AlCaricamento();
  casella_.askForDigits();
}

void RispostaScritta::NuovoCaso() {
  forma_.newCase();
  casella_.setText({});
  casella_.setLocked(false);
  casella_.setFocus();
  forma_.NascondiSegno();
  avanti_.setEnabled(false);
  forma_.NascondiAiuti();
  forma_.GeneraPerTipo();
}

void RispostaScritta::Controlla() {
  switch (forma_.partita().Rispondi(NumeroScritto(casella_))) {
    case Esito::Sbagliato:
      forma_.SegnaSbagliato();
      break;
    case Esito::Risolto:
      comandi_.SegnaRisolto();
      casella_.setLocked(true);
      avanti_.setFocus();
      break;
    default:
      break;
  }
}

}  // namespace somme::inline barre
