#pragma once

#include <QtGlobal>
#include <optional>

#include "platform/base/chance.h"

namespace somme::inline giochi {

// The cells of the table bear the numbers from 0 on.
inline constexpr int kUltimaCella = 99;

// A sum or difference on the table.
struct CasoTabella {
  int a = 0;
  int b = 0;
  bool meno = false;     // a - b instead of a + b
  qint32 risultato = 0;  // the number of the cell to find

  friend bool operator==(const CasoTabella&, const CasoTabella&) = default;
};

// Draws a case of a kind from 0 to 12; nothing for any other.
[[nodiscard]] std::optional<CasoTabella> EstraiCasoTabella(platform::Chance& sorte, int tipo);

}  // namespace somme::inline giochi
