#include "immagini/immagini.h"

#include <QtCore/qglobal.h>

// Q_INIT_RESOURCE declares a function of the global namespace, so it cannot stand inside one.
static void PreparaRisorsa() {
  Q_INIT_RESOURCE(immagini);
}

namespace somme::inline immagini {

void PreparaImmagini() {
  PreparaRisorsa();
}

}  // namespace somme::inline immagini
