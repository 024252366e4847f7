#include "app/shared/modulo_navigate.h"

#include "app/shared/ambiente.h"

namespace somme::inline condiviso {

void ApriDocumento(Ambiente& ambiente, const QString& percorso) {
  ambiente.servizi.documenti.open(percorso);
}

}  // namespace somme::inline condiviso
