#include "exercises/numbers/form_numeri_addendo_hk.h"

#include "app/shared/nomi_forme.h"
#include "exercises/numbers/disegno_numeri_hk.h"

namespace somme {

namespace {

constexpr platform::FormDesign kDisegno =
    disegno::DisegnoNumeri(forme::kFormNumeriAddendoHK, disegno::kTavoleNumeriHK);
constexpr EsercizioNumeriHK kEsercizio{kTrovaAddendo, EsercizioNumeriHK::Inizio::AbilitaCasella};

}  // namespace

FormNumeriAddendoHK::FormNumeriAddendoHK(Ambiente& ambiente)
    : FormaNumeriHK(ambiente, kDisegno, kEsercizio) {}

}  // namespace somme
