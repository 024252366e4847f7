#include "exercises/bars/form_barre10_tastiera.h"

#include "app/shared/nomi_forme.h"
#include "exercises/bars/disegno_barre.h"

namespace somme {

using namespace disegno;

namespace {

constexpr int kAiuti = 10;

constexpr std::array<std::span<const Row>, 5> kTavole{kSommaSotto, kBarre10Basse, kRestoTastiera,
                                                      kMenuBarre, kUscita};

constexpr FormDesign kDisegno{.name = forme::kFormBarre10Tastiera,
                              .caption = "Esercitazioni sulle somme",
                              .width = 10980,
                              .height = 7905,
                              .back = kGialloPallido,
                              .tables = kTavole};

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
