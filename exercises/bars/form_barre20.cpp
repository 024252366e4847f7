#include "exercises/bars/form_barre20.h"

#include "app/shared/nomi_forme.h"
#include "exercises/bars/disegno_barre_tastiera.h"

namespace somme {

using namespace disegno;

namespace {

constexpr auto kBarre = BarreInAlto(465);
constexpr auto kSegno = std::to_array<Row>({Segno<FormBarre20>(-120, 3360)});

constexpr std::array<std::span<const Row>, 8> kTavole{
    kBarre,           kSegno,         kSommaSotto, kConsegnaSotto,
    kRispostaScritta, kVerdettoBarre, kMenuBarre,  kEsciBarre};

constexpr FormDesign kDisegno = DisegnoBarreTastiera(forme::kFormBarre20, 7605, kTavole);

}  // namespace

FormBarre20::FormBarre20(Ambiente& ambiente) : ConSegno(ambiente, kDisegno, kFinoA20) {}

}  // namespace somme
