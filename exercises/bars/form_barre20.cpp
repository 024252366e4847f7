#include "exercises/bars/form_barre20.h"

#include "app/shared/nomi_forme.h"
#include "exercises/bars/disegno_barre.h"

namespace somme {

using namespace disegno;

namespace {

constexpr int kAiuti = 20;
constexpr int kDecina = 10;

constexpr auto kLinea = std::to_array<Row>({
    row<&FormBarre20::Line1>({4890, -120, 0, 3480}, {.toolTip = "Qui finisce la decina",
                                                     .hidden = true,
                                                     .borderWidth = 2,
                                                     .in = nameOf<&FormBarre20::Picture1>}),
});

constexpr std::array<std::span<const Row>, 6> kTavole{kSommaSotto,    kBarre20,   kLinea,
                                                      kRestoTastiera, kMenuBarre, kUscita};

constexpr FormDesign kDisegno{.name = forme::kFormBarre20,
                              .caption = "Esercitazioni sulle somme",
                              .width = 10980,
                              .height = 7605,
                              .back = kGialloPallido,
                              .tables = kTavole};

}  // namespace

FormBarre20::FormBarre20(Ambiente& ambiente) : FormaBarreTastiera(ambiente, kDisegno, kAiuti) {}

void FormBarre20::onActivate() {
  LeggiMisure();
  Line1.setX1(FineDi(kDecina));
  Line1.setX2(FineDi(kDecina));
  MisuraAiuti();
  ScriviTitolo(stringhe().TitoloFinoAl20);
  CreaAiuti();
  ColoraTermini();
  NuovoCaso();
}

void FormBarre20::MostraAiuto() {
  if (stato().LimiteEsercizio == kAiuti) Line1.setVisible(true);
  FormaBarreTastiera::MostraAiuto();
}

}  // namespace somme
