#pragma once

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

}  // namespace somme::tavoletta
