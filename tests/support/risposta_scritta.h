#pragma once

#include "support/banco.h"

namespace prova {

// A number typed into the box that has the focus, and confirmed.
inline void rispondiScrivendo(Banco& banco, const QString& numero) {
  banco.scrivi(numero);
  banco.batti(Qt::Key_Return);
}

}  // namespace prova
