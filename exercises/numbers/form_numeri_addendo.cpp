#include "exercises/numbers/form_numeri_addendo.h"

#include "app/shared/nomi_forme.h"
#include "exercises/numbers/disegno_numeri.h"

namespace somme {

namespace {

constexpr platform::FormDesign kDisegno = disegno::DisegnoNumeri(forme::kFormNumeriAddendo);

}  // namespace

FormNumeriAddendo::FormNumeriAddendo(Ambiente& ambiente)
    : FormaNumeriTastiera(ambiente, kDisegno, kTrovaAddendo) {}

}  // namespace somme
