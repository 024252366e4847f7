#include "exercises/numbers/form_numeri_totale_scansione.h"

#include "app/shared/nomi_forme.h"
#include "exercises/numbers/disegno_numeri_scansione.h"

namespace somme {

namespace {

constexpr platform::FormDesign kDisegno =
    disegno::DisegnoNumeriScansione(forme::kFormNumeriTotaleScansione);

}  // namespace

FormNumeriTotaleScansione::FormNumeriTotaleScansione(Ambiente& ambiente)
    : FormaNumeriScansione(ambiente, kDisegno, kTrovaTotale) {}

}  // namespace somme
