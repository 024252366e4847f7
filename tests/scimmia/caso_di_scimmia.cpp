#include "scimmia/caso_di_scimmia.h"

#include <cstdio>

namespace prova {

void Racconto::annota(int profondita, const QString& parole) {
  constexpr int kRighe = 60;
  righe_.append(QString(qsizetype{2} * profondita, u' ') + parole);
  if (righe_.size() > kRighe) righe_.removeFirst();
  if (subito_) std::fprintf(stderr, "%s\n", qPrintable(righe_.last()));
}

}  // namespace prova
