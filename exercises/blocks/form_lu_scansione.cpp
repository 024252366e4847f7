#include "exercises/blocks/form_lu_scansione.h"

#include "app/shared/nomi_forme.h"
#include "exercises/blocks/disegno_blocchi_scansione.h"

namespace somme {

using namespace disegno;

namespace {

constexpr auto kControlli = std::to_array<Row>({
    TastieraHDU<FormLUScansione>(kPostoHDUBlocchi, true, kSenzaKH),
    CambioEntro99<FormLUScansione>(),
    RisultatoScandito({4680, 5520, 1215, 855}, 2),
});

constexpr std::array<std::span<const Row>, 5> kTavole{kTavoleBlocchi, kControlli, kTastiereBlocchi,
                                                      kSottoBlocchi, kMenuBlocchi};
constexpr FormDesign kDisegno = DisegnoBlocchi(forme::kFormLUScansione, kTavole);

}  // namespace

FormLUScansione::FormLUScansione(Ambiente& ambiente)
    : ConCambio(ambiente, kDisegno, kBlocchiEntro99) {}

}  // namespace somme
