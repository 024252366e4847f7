#include "exercises/bars/forma_barre_tastiera.h"

#include "exercises/bars/disegno_barre_scritte.h"

namespace somme::inline barre {

using namespace disegno;

namespace {

constexpr auto& kRisposta = kRispostaScritta<FormaBarreTastiera>;
constexpr auto kSegno = std::to_array<Row>({Segno(-120, 3360)});

constexpr std::array<std::span<const Row>, 7> kTavole10{
    kBarreScritte10,  kSommaSotto, kConsegnaSotto, kRisposta,
    kVerdettoScritte, kMenuBarre,  kEsciBarre};
constexpr std::array<std::span<const Row>, 8> kTavole20{
    kBarreScritte20, kSegno,           kSommaSotto, kConsegnaSotto,
    kRisposta,       kVerdettoScritte, kMenuBarre,  kEsciBarre};

}  // namespace

constexpr VarianteBarre kBarreTastiera10{.titolo = &StringheCondivise::TitoloFinoAl10,
                                         .larghezza = kLarghezzaBarreScritte,
                                         .altezza = 7905,
                                         .tavole = kTavole10};
constexpr VarianteBarre kBarreTastiera20{.titolo = &StringheCondivise::TitoloFinoAl20,
                                         .larghezza = kLarghezzaBarreScritte,
                                         .altezza = 7605,
                                         .tavole = kTavole20};

FormaBarreTastiera::FormaBarreTastiera(Ambiente& ambiente, std::string_view nome,
                                       const VarianteBarre& variante)
    : FormaBarre(ambiente, nome, variante) {}

void FormaBarreTastiera::onLoad() {
  FormaBarre::onLoad();
  risposta_.AlCaricamento();
}

}  // namespace somme::inline barre
