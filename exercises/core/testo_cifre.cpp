#include "exercises/core/testo_cifre.h"

#include <algorithm>

#include "platform/base/numbers.h"
#include "platform/forms/keys/key_codes.h"

namespace somme::inline nucleo {

void RaccogliCifre(platform::TextBox& casella, std::function<void()> conferma) {
  casella.onKeyPress([](int& tasto) {
    if (tasto != platform::kKeyBackspace && !platform::isNumericCharacter(QChar(char16_t(tasto)))) {
      tasto = 0;
    }
  });
  casella.onKeyUp([conferma = std::move(conferma)](int tasto) {
    if (tasto == platform::kKeyEnter) conferma();
  });
}

std::optional<double> NumeroScritto(const platform::TextBox& casella) {
  const QString testo = casella.text();
  if (platform::trimBlanks(testo).isEmpty()) return std::nullopt;
  return platform::leadingNumber(testo);
}

void LeggiInsieme(platform::ControlArray<platform::Label>& cifre, int numero) {
  const QString intero = platform::plain(numero);
  const int prima = std::max(0, cifre.count() - int(intero.size()));
  for (int i = 0; i < cifre.count(); ++i) cifre[i].setSpokenName(i == prima ? intero : QString());
}

}  // namespace somme::inline nucleo
