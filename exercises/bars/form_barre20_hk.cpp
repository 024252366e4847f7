#include "exercises/bars/form_barre20_hk.h"

#include "app/shared/nomi_forme.h"
#include "exercises/bars/disegno_barre_hk.h"

namespace somme {

using namespace disegno;

namespace {

constexpr auto kBarre = BarreInAlto(465);
constexpr auto kSegno = std::to_array<Row>({Segno<FormBarre20HK>(120, 3600)});

constexpr std::array<std::span<const Row>, 10> kTavole{
    kBarre,         kSegno,        kSommaSotto,    kConsegnaSotto, kRispostaScritta,
    kVerdettoBarre, kPresaBarreHK, kFoglioBarreHK, kMenuBarre,     kEsciBarre};

constexpr FormDesign kDisegno =
    DisegnoBarreTastiera(forme::kFormBarre20HK, kAltezzaBarreHK, kTavole);

}  // namespace

FormBarre20HK::FormBarre20HK(Ambiente& ambiente) : ConSegno(ambiente, kDisegno, kFinoA20) {}

// The mark goes before anything else, on this form alone.
void FormBarre20HK::NuovoCaso() {
  NascondiSegno();
  ConSegno::NuovoCaso();
}

}  // namespace somme
