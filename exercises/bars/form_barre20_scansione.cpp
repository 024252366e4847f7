#include "exercises/bars/form_barre20_scansione.h"

#include "app/shared/nomi_forme.h"
#include "exercises/bars/disegno_barre_scansione.h"

namespace somme {

using namespace disegno;

namespace {

constexpr Rgb kGiallo{255, 255, 0};

constexpr auto kBarre = BarreInAlto(465);
constexpr auto kControlli = std::to_array<Row>({
    Segno<FormBarre20Scansione>(480, 3000, false),  // the first case hides it
    row<&FormBarre20Scansione::LabelDimensioneTastiera>({3240, 6600, 7455, 555}, {.hidden = true}),
    TastieraNumerica<FormBarre20Scansione>({3240, 6600, 7455, 555}, false),
    Si({240, 6450, 795, 795}),
    No({240, 6450, 795, 795}),
    Esatti({1140, 6450, 1860, 390}),
    Errati({1140, 6870, 1860, 390}),
});

constexpr std::array<std::span<const Row>, 7> kTavole{
    kBarre, kSommaSotto, kConsegnaSotto, kRestoScansione, kControlli, kMenuBarre, kEsciBarre};

constexpr FormDesign kDisegno{.name = forme::kFormBarre20Scansione,
                              .caption = "Esercitazioni sulle somme",
                              .width = 11190,
                              .height = 7500,
                              .back = kGialloPallido,
                              .tables = kTavole};

}  // namespace

FormBarre20Scansione::FormBarre20Scansione(Ambiente& ambiente)
    : ConSegno(ambiente, kDisegno, kFinoA20) {}

void FormBarre20Scansione::onActivate() {
  LeggiMisure();
  PosaSegno();
  MisuraAiuti();
  ScriviTitolo();
  CreaAiuti();
  PosaTastiera(TastieraNumericaScansione1, LabelDimensioneTastiera);
  ColoraTermini();
  NuovoCaso();
  MettiModo(TastieraNumericaScansione1);
  TastieraNumericaScansione1.Attiva();
}

void FormBarre20Scansione::NuovoCaso() {
  FormaBarreScansione::NuovoCaso();
  ColoraTermini(kGiallo);
  ScriviSomma();
}

void FormBarre20Scansione::MostraAiuto() {
  Line1.setVisible(true);
  FormaBarreScansione::MostraAiuto();
}

void FormBarre20Scansione::ChiudiPannelloStampa() {
  TastieraNumericaScansione1.Attiva();
  FormaBarreScansione::ChiudiPannelloStampa();
  NuovoCaso();
}

}  // namespace somme
