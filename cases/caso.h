#pragma once

#include <QtGlobal>

namespace somme {

// One addition. Whoever writes it leaves `Totale` = `Addendo1` + `Addendo2`.
struct Caso {
  qint16 Totale = 0;
  qint16 Addendo1 = 0;
  qint16 Addendo2 = 0;
};

}  // namespace somme
