#include "exercises/numbers/form_numeri_addendo_scansione.h"

#include "app/shared/nomi_forme.h"
#include "exercises/numbers/disegno_numeri_scansione.h"

namespace somme {

namespace {

constexpr platform::FormDesign kDisegno =
    disegno::DisegnoNumeriScansione(forme::kFormNumeriAddendoScansione);

}  // namespace

FormNumeriAddendoScansione::FormNumeriAddendoScansione(Ambiente& ambiente)
    : FormaNumeriScansione(ambiente, kDisegno, kTrovaAddendo) {}

}  // namespace somme
