#include "exercises/blocks/form_lu.h"

#include "app/shared/nomi_forme.h"
#include "exercises/blocks/disegno_blocchi.h"

namespace somme {

using namespace disegno;

namespace {

constexpr auto kControlli = std::to_array<Row>({
    row<&FormLU::PicturePulsanti>({840, 5640, 4575, 615},
                                  {.toolTip = "Blocchi", .back = kGialloPallido}),
    row<&FormLU::PulsanteDa>({180, 0, 975, 615}, Blocco("da", "Metti una decina", kRosso, kBlack)),
    row<&FormLU::PulsanteU>({1260, 0, 975, 615}, Blocco("u", "Metti un'unità", kBlu, kWhite)),
    row<&FormLU::PulsanteCestino>({2340, 0, 975, 615}, Comando("Svuota", "cestino")),
    row<&FormLU::PulsanteConferma>({3420, 0, 975, 615}, Comando("Conferma", "conferma")),
    row<&FormLU::PulsanteCambio>({4560, 5520, 2055, 975},
                                 Cambio("Cambia dieci unità in una decina", "cambio_u_da")),
    row<&FormLU::TestoInput>({4680, 5520, 1215, 855}, ScrittaRisultato(2)),
    Avanti<FormLU>({8880, 6600, 1935, 975}),
});

constexpr std::array<std::span<const Row>, 4> kTavole{kTavoleBlocchi, kControlli, kSottoBlocchi,
                                                      kMenuBlocchi};
constexpr FormDesign kDisegno = DisegnoBlocchi(forme::kFormLU, kTavole);

}  // namespace

FormLU::FormLU(Ambiente& ambiente) : ConCambio(ambiente, kDisegno, kBlocchiEntro99) {}

}  // namespace somme
