#pragma once

#include "cases/caso.h"

namespace prova {

// A case of two addends.
inline somme::Caso caso(int addendo1, int addendo2) {
  return {.Totale = static_cast<qint16>(addendo1 + addendo2),
          .Addendo1 = static_cast<qint16>(addendo1),
          .Addendo2 = static_cast<qint16>(addendo2)};
}

}  // namespace prova
