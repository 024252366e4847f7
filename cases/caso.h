#pragma once

#include <QtGlobal>

namespace somme::inline casi {

// One addition. Whenever a generator has returned, Totale is Addendo1 plus Addendo2.
struct Caso {
  qint16 Totale = 0;
  qint16 Addendo1 = 0;
  qint16 Addendo2 = 0;

  friend bool operator==(const Caso&, const Caso&) = default;
};

}  // namespace somme::inline casi
