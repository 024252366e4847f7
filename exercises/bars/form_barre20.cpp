#include "exercises/bars/form_barre20.h"

#include "app/shared/nomi_forme.h"
#include "exercises/bars/disegno_barre_tastiera.h"

namespace somme {

using namespace disegno;

namespace {

constexpr int kAiuti = 20;

constexpr auto kBarre = BarreInAlto(465);
constexpr auto kSegno = std::to_array<Row>({Segno<FormBarre20>(-120, 3360)});

constexpr std::array<std::span<const Row>, 7> kTavole{
    kBarre, kSegno, kSommaScritta, kRispostaScritta, kVerdettoBarre, kMenuBarre, kEsciBarre};

constexpr FormDesign kDisegno = DisegnoBarreTastiera(forme::kFormBarre20, 7605, kTavole);

}  // namespace

FormBarre20::FormBarre20(Ambiente& ambiente) : ConSegno(ambiente, kDisegno, kAiuti) {}

void FormBarre20::onActivate() {
  LeggiMisure();
  PosaSegno();
  MisuraAiuti();
  ScriviTitolo(stringhe().TitoloFinoAl20);
  CreaAiuti();
  ColoraTermini();
  NuovoCaso();
}

}  // namespace somme
