#include "exercises/blocks/form_hlu_hk.h"

#include "app/shared/nomi_forme.h"
#include "exercises/blocks/disegno_blocchi_hk.h"

namespace somme {

using namespace disegno;

namespace {

constexpr auto kControlli = std::to_array<Row>({
    CambioUDa<FormHLUHK>(),
    CambioDaH<FormHLUHK>(),
});

constexpr std::array<std::span<const Row>, 9> kTavole{
    kPresaBlocchi, kTavoleBlocchi, kComandiEntro999<FormHLUHK>,
    kControlli,    kRisultatoHK,   kContiBlocchi,
    kSottoBlocchi, kFoglioBlocchi, kMenuBlocchi};
constexpr FormDesign kDisegno = DisegnoBlocchi(forme::kFormHLUHK, kTavole);

}  // namespace

FormHLUHK::FormHLUHK(Ambiente& ambiente) : ConPiatti(ambiente, kDisegno, kBlocchiEntro999) {}

}  // namespace somme
