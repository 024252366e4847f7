#include "exercises/numbers/form_numeri_addendo.h"

#include "app/shared/nomi_forme.h"
#include "exercises/numbers/disegno_numeri_tastiera.h"

namespace somme {

namespace {

constexpr platform::FormDesign kDisegno =
    disegno::DisegnoNumeri(forme::kFormNumeriAddendo, disegno::kTavoleNumeriTastiera);

}  // namespace

FormNumeriAddendo::FormNumeriAddendo(Ambiente& ambiente)
    : FormaNumeriTastiera(ambiente, kDisegno, kTrovaAddendo) {}

}  // namespace somme
