#include "exercises/core/tasti_cifre.h"

#include "exercises/core/forma_esercizio.h"
#include "input/testo_input_numerico.h"
#include "platform/forms/accessible_events.h"
#include "platform/forms/controls/text_box.h"

namespace somme::inline nucleo {

AzioniCifre CifreIn(platform::TextBox& casella, AzioniCifre resto) {
  resto.cifra = [&casella](int cifra) { casella.setText(casella.text() + QString::number(cifra)); };
  resto.cestino = [&casella] { casella.setText({}); };
  resto.scritto = [&casella] { return casella.text(); };
  return resto;
}

AzioniCifre CifreScanditeIn(platform::TextBox& casella, AzioniCifre resto) {
  resto = CifreIn(casella, std::move(resto));
  resto.cifra = [&casella, accoda = resto.cifra](int cifra) {
    if (casella.text().size() < casella.maxLength()) accoda(cifra);
  };
  return resto;
}

AzioniCifre CifreScanditeIn(TestoInputNumerico& casella, AzioniCifre resto) {
  resto.cifra = [&casella](int cifra) {
    const QString testo = casella.Text.get();
    if (testo.size() < casella.MaxLength.get()) casella.Text.set(testo + QString::number(cifra));
  };
  resto.cestino = [&casella] {
    casella.TestoPerInput();
    casella.Text.set({});
  };
  resto.scritto = [&casella] { return casella.Text.get(); };
  resto.conferma = [&casella] { casella.TerminaInserimento(); };
  return resto;
}

TastiCifre::TastiCifre(FormaEsercizio& forma, AzioniCifre azioni)
    : forma_(forma), azioni_(std::move(azioni)) {}

void TastiCifre::Cifra(int cifra) const {
  Scrivi([&] { azioni_.cifra(cifra); });
}

void TastiCifre::Cestino() const {
  Scrivi(azioni_.cestino);
}

// The box that has the focus would tell it, too; where something else has it, nobody would.
void TastiCifre::Scrivi(const std::function<void()>& azione) const {
  {
    const platform::WritingNotTold unaVolta;
    azione();
  }
  forma_.DiciScritto(azioni_.scritto());
}

}  // namespace somme::inline nucleo
