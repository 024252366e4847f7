#include "exercises/bars/form_barre10_tastiera.h"

#include "app/shared/nomi_forme.h"
#include "exercises/bars/disegno_barre_tastiera.h"

namespace somme {

using namespace disegno;

namespace {

constexpr double kAltezza = 7905;

constexpr auto kBarre = BarreInAlto(705);

constexpr std::array<std::span<const Row>, 7> kTavole{
    kBarre, kSommaSotto, kConsegnaSotto, kRispostaScritta, kVerdettoBarre, kMenuBarre, kEsciBarre};

constexpr FormDesign kDisegno =
    DisegnoBarreTastiera(forme::kFormBarre10Tastiera, kAltezza, kTavole);

}  // namespace

FormBarre10Tastiera::FormBarre10Tastiera(Ambiente& ambiente)
    : FormaBarreTastiera(ambiente, kDisegno, kFinoA10) {}

}  // namespace somme
