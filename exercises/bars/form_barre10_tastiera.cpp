#include "exercises/bars/form_barre10_tastiera.h"

#include "app/shared/nomi_forme.h"
#include "exercises/bars/disegno_barre_tastiera.h"

namespace somme {

using namespace disegno;

namespace {

constexpr int kAiuti = 10;

constexpr double kAltezza = 7905;

constexpr auto kBarre = BarreInAlto(705);

constexpr std::array<std::span<const Row>, 6> kTavole{
    kBarre, kSommaScritta, kRispostaScritta, kVerdettoBarre, kMenuBarre, kEsciBarre};

constexpr FormDesign kDisegno =
    DisegnoBarreTastiera(forme::kFormBarre10Tastiera, kAltezza, kTavole);

}  // namespace

FormBarre10Tastiera::FormBarre10Tastiera(Ambiente& ambiente)
    : FormaBarreTastiera(ambiente, kDisegno, kAiuti) {}

void FormBarre10Tastiera::onActivate() {
  LeggiMisure();
  MisuraAiuti();
  ScriviTitolo(stringhe().TitoloFinoAl10);
  CreaAiuti();
  ColoraTermini();
  NuovoCaso();
}

}  // namespace somme
