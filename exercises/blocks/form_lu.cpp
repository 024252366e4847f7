#include "exercises/blocks/form_lu.h"

#include "app/shared/nomi_forme.h"
#include "exercises/blocks/disegno_blocchi.h"

namespace somme {

using namespace disegno;

namespace {

constexpr auto kControlli = std::to_array<Row>({
    CambioEntro99<FormLU>(),
    row<&FormLU::TestoInput>({4680, 5520, 1215, 855}, ScrittaRisultato(2)),
    Avanti<FormLU>(kPostoAvantiBlocchi),
});

constexpr std::array<std::span<const Row>, 6> kTavole{
    kTavoleBlocchi, kComandiEntro99, kControlli, kContiBlocchi, kSottoBlocchi, kMenuBlocchi};
constexpr FormDesign kDisegno = DisegnoBlocchi(forme::kFormLU, kTavole);

}  // namespace

FormLU::FormLU(Ambiente& ambiente) : ConCambio(ambiente, kDisegno, kBlocchiEntro99) {}

}  // namespace somme
