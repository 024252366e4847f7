#include "exercises/blocks/form_lu_hk.h"

#include "app/shared/nomi_forme.h"
#include "exercises/blocks/disegno_blocchi_hk.h"

namespace somme {

using namespace disegno;

namespace {

constexpr auto kControlli = std::to_array<Row>({
    CambioEntro99<FormLUHK>(),
});

constexpr std::array<std::span<const Row>, 9> kTavole{
    kPresaBlocchi, kTavoleBlocchi, kComandiEntro99, kControlli,  kRisultatoHK,
    kContiBlocchi, kSottoBlocchi,  kFoglioBlocchi,  kMenuBlocchi};
constexpr FormDesign kDisegno = DisegnoBlocchi(forme::kFormLUHK, kTavole);

}  // namespace

FormLUHK::FormLUHK(Ambiente& ambiente) : ConCambio(ambiente, kDisegno, kBlocchiEntro99) {}

}  // namespace somme
