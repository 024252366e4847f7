#include "exercises/bars/form_barre10_hk.h"

#include "app/shared/nomi_forme.h"
#include "exercises/bars/disegno_barre_hk.h"

namespace somme {

using namespace disegno;

namespace {

constexpr auto kBarre = BarreInAlto(705);

constexpr std::array<std::span<const Row>, 9> kTavole{
    kBarre,        kSommaSotto,    kConsegnaSotto, kRispostaScritta, kVerdettoBarre,
    kPresaBarreHK, kFoglioBarreHK, kMenuBarre,     kEsciBarre};

constexpr FormDesign kDisegno =
    DisegnoBarreTastiera(forme::kFormBarre10HK, kAltezzaBarreHK, kTavole);

}  // namespace

FormBarre10HK::FormBarre10HK(Ambiente& ambiente) : FormaBarreHK(ambiente, kDisegno, kFinoA10) {}

}  // namespace somme
