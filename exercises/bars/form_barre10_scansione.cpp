#include "exercises/bars/form_barre10_scansione.h"

#include "app/shared/nomi_forme.h"
#include "exercises/bars/disegno_barre_scansione.h"

namespace somme {

using namespace disegno;

namespace {

constexpr auto kBarre = BarreInAlto(705);
constexpr auto kControlli = std::to_array<Row>({
    row<&FormBarre10Scansione::LabelDimensioneTastiera>({3120, 6240, 7455, 555}, {.hidden = true}),
    TastieraNumerica<FormBarre10Scansione>({3120, 6240, 7455, 555}, false),
});

constexpr std::array<std::span<const Row>, 7> kTavole{
    kBarre, kSommaSotto, kConsegnaSotto, kRestoScansione, kControlli, kMenuBarre, kEsciBarre};

constexpr FormDesign kDisegno{.name = forme::kFormBarre10Scansione,
                              .caption = "Esercitazioni sulle somme",
                              .width = 11010,
                              .height = 7245,
                              .back = kGialloPallido,
                              .tables = kTavole};

}  // namespace

FormBarre10Scansione::FormBarre10Scansione(Ambiente& ambiente)
    : FormaBarreScansione(ambiente, kDisegno, kFinoA10) {}

void FormBarre10Scansione::onActivate() {
  LeggiMisure();
  MisuraAiuti();
  ScriviTitolo();
  CreaAiuti();
  PosaTastiera(TastieraNumericaScansione1, LabelDimensioneTastiera);
  NuovoCaso();
  MettiModo(TastieraNumericaScansione1);
  ColoraTermini();
  TastieraNumericaScansione1.Attiva();
}

void FormBarre10Scansione::ChiudiPannelloStampa() {
  FormaBarreScansione::ChiudiPannelloStampa();
  TastieraNumericaScansione1.Attiva();
  NuovoCaso();
}

}  // namespace somme
