#include "exercises/numbers/form_numeri_totale_hk.h"

#include "app/shared/nomi_forme.h"
#include "exercises/numbers/disegno_numeri_hk.h"

namespace somme {

namespace {

constexpr platform::FormDesign kDisegno =
    disegno::DisegnoNumeri(forme::kFormNumeriTotaleHK, disegno::kTavoleNumeriHK);
constexpr EsercizioNumeriHK kEsercizio{kTrovaTotale, EsercizioNumeriHK::Inizio::Subito};

}  // namespace

FormNumeriTotaleHK::FormNumeriTotaleHK(Ambiente& ambiente)
    : FormaNumeriHK(ambiente, kDisegno, kEsercizio) {}

}  // namespace somme
