#include "exercises/blocks/form_hlu.h"

#include "app/shared/nomi_forme.h"
#include "exercises/blocks/disegno_blocchi.h"

namespace somme {

using namespace disegno;

namespace {

constexpr TwipsRect kPostoCambio{4680, 5520, 2055, 975};

constexpr auto kControlli = std::to_array<Row>({
    row<&FormHLU::PicturePulsanti>({720, 5520, 4575, 615},
                                   {.toolTip = "Blocchi", .back = kGialloPallido}),
    row<&FormHLU::PulsanteH>({240, 0, 735, 615}, Blocco("h", "Metti un centinaio", kVerde, kBlack)),
    row<&FormHLU::PulsanteDa>({1080, 0, 735, 615},
                              Blocco("da", "Metti una decina", kRosso, kBlack)),
    row<&FormHLU::PulsanteU>({1920, 0, 735, 615}, Blocco("u", "Metti un'unità", kBlu, kWhite)),
    row<&FormHLU::PulsanteCestino>({2760, 0, 735, 615}, Comando("Svuota", "cestino")),
    row<&FormHLU::PulsanteConferma>({3600, 0, 735, 615}, Comando("Conferma", "conferma")),
    // The two are never shown together.
    row<&FormHLU::PulsanteCambioUDa>(kPostoCambio,
                                     Cambio("Cambia dieci unità in una decina", "cambio_u_da")),
    row<&FormHLU::PulsanteCambioDaH>(kPostoCambio,
                                     Cambio("Cambia dieci decine in un centinaio", "cambio_da_h")),
    row<&FormHLU::TestoInput>({5160, 5520, 1215, 855}, ScrittaRisultato(3)),
    Avanti<FormHLU>({8880, 6600, 1935, 975}),
});

constexpr std::array<std::span<const Row>, 4> kTavole{kTavoleBlocchi, kControlli, kSottoBlocchi,
                                                      kMenuBlocchi};
constexpr FormDesign kDisegno = DisegnoBlocchi(forme::kFormHLU, kTavole);

}  // namespace

FormHLU::FormHLU(Ambiente& ambiente) : ConPiatti(ambiente, kDisegno, kBlocchiEntro999) {}

}  // namespace somme
