#include "exercises/numbers/form_numeri_totale.h"

#include "app/shared/nomi_forme.h"
#include "exercises/numbers/disegno_numeri.h"

namespace somme {

namespace {

constexpr platform::FormDesign kDisegno = disegno::DisegnoNumeri(forme::kFormNumeriTotale);

}  // namespace

FormNumeriTotale::FormNumeriTotale(Ambiente& ambiente)
    : FormaNumeriTastiera(ambiente, kDisegno, kTrovaTotale) {}

}  // namespace somme
