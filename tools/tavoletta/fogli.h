#pragma once

#include <QString>
#include <array>
#include <string_view>

#include "app/shared/foglio_tasti.h"

namespace somme::tavoletta {

// One kind of keyboard sheet.
struct Foglio {
  std::string_view nome;  // in a script
  std::u16string_view titolo;
  const Tastiera& tastiera;
};

inline constexpr std::array<Foglio, 3> kFogli{{
    {"cifre", u"Barre e numeri", kTastieraCifre},
    {"blocchi", u"Piatti, lunghi, unità", kTastieraBlocchi},
    {"abaco", u"Abaco", kTastieraAbaco},
}};

// What stands on the key at a place; nothing where no exercise has a key.
[[nodiscard]] inline QString Parola(const Foglio& foglio, int posto) {
  const std::string_view parola = SegnoDi(foglio.tastiera.TastoDi(posto).tasto).parola;
  return QString::fromUtf8(parola.data(), qsizetype(parola.size()));
}

}  // namespace somme::tavoletta
