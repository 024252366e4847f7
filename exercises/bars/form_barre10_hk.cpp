#include "exercises/bars/form_barre10_hk.h"

#include "app/shared/nomi_forme.h"
#include "exercises/bars/disegno_barre_hk.h"

namespace somme {

using namespace disegno;

namespace {

constexpr int kAiuti = 10;

constexpr auto kBarre = BarreInAlto(705);

constexpr std::array<std::span<const Row>, 8> kTavole{
    kBarre,        kSommaScritta,  kRispostaScritta, kVerdettoBarre,
    kPresaBarreHK, kFoglioBarreHK, kMenuBarre,       kEsciBarre};

constexpr FormDesign kDisegno =
    DisegnoBarreTastiera(forme::kFormBarre10HK, kAltezzaBarreHK, kTavole);

}  // namespace

FormBarre10HK::FormBarre10HK(Ambiente& ambiente)
    : FormaBarreHK(ambiente, kDisegno, kAiuti, &StringheCondivise::TitoloFinoAl10) {}

}  // namespace somme
