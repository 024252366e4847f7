#include "exercises/core/tasti_cifre.h"

#include "exercises/core/forma_esercizio.h"
#include "platform/forms/controls/text_box.h"

namespace somme {

AzioniCifre CifreIn(platform::TextBox& casella, AzioniCifre resto) {
  resto.cifra = [&casella](int cifra) { casella.setText(casella.text() + QString::number(cifra)); };
  resto.cestino = [&casella] { casella.setText({}); };
  resto.scritto = [&casella] { return casella.text(); };
  return resto;
}

TastiCifre::TastiCifre(FormaEsercizio& forma, AzioniCifre azioni)
    : forma_(forma), azioni_(std::move(azioni)) {}

void TastiCifre::Cifra(int cifra) const {
  azioni_.cifra(cifra);
  forma_.DiciScritto(azioni_.scritto());
}

void TastiCifre::Cestino() const {
  azioni_.cestino();
  forma_.DiciScritto(azioni_.scritto());
}

}  // namespace somme
