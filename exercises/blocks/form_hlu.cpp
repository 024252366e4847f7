#include "exercises/blocks/form_hlu.h"

#include "app/shared/nomi_forme.h"
#include "exercises/blocks/disegno_blocchi.h"

namespace somme {

using namespace disegno;

namespace {

constexpr auto kControlli = std::to_array<Row>({
    CambioUDa<FormHLU>(),
    CambioDaH<FormHLU>(),
    row<&FormHLU::TestoInput>({5160, 5520, 1215, 855}, ScrittaRisultato(3)),
    Avanti<FormHLU>(kPostoAvantiBlocchi),
});

constexpr std::array<std::span<const Row>, 6> kTavole{kTavoleBlocchi, kComandiEntro999<FormHLU>,
                                                      kControlli,     kContiBlocchi,
                                                      kSottoBlocchi,  kMenuBlocchi};
constexpr FormDesign kDisegno = DisegnoBlocchi(forme::kFormHLU, kTavole);

}  // namespace

FormHLU::FormHLU(Ambiente& ambiente) : ConPiatti(ambiente, kDisegno, kBlocchiEntro999) {}

}  // namespace somme
