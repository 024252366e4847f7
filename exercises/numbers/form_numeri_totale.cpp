#include "exercises/numbers/form_numeri_totale.h"

#include "app/shared/nomi_forme.h"
#include "exercises/numbers/disegno_numeri_tastiera.h"

namespace somme {

namespace {

constexpr platform::FormDesign kDisegno =
    disegno::DisegnoNumeri(forme::kFormNumeriTotale, disegno::kTavoleNumeriTastiera);

}  // namespace

FormNumeriTotale::FormNumeriTotale(Ambiente& ambiente)
    : FormaNumeriTastiera(ambiente, kDisegno, kTrovaTotale) {}

}  // namespace somme
