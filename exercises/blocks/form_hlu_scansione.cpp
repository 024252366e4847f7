#include "exercises/blocks/form_hlu_scansione.h"

#include "app/shared/nomi_forme.h"
#include "exercises/blocks/disegno_blocchi_scansione.h"

namespace somme {

using namespace disegno;

namespace {

constexpr auto kControlli = std::to_array<Row>({
    TastieraHDU<FormHLUScansione>(kPostoHDUBlocchi, true, kSenzaK),
    CambioUDa<FormHLUScansione>(),
    CambioDaH<FormHLUScansione>(),
    RisultatoScandito({5160, 5520, 1215, 855}, 3),
});

constexpr std::array<std::span<const Row>, 5> kTavole{kTavoleBlocchi, kControlli, kTastiereBlocchi,
                                                      kSottoBlocchi, kMenuBlocchi};
constexpr FormDesign kDisegno = DisegnoBlocchi(forme::kFormHLUScansione, kTavole);

}  // namespace

FormHLUScansione::FormHLUScansione(Ambiente& ambiente)
    : ConDueCambi(ambiente, kDisegno, kBlocchiEntro999) {}

void FormHLUScansione::onLoad() {
  ConDueCambi::onLoad();
  if (stato().CursoreDiSistema) ImpostaCursoreSistema();
}

}  // namespace somme
