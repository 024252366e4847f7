#include "exercises/blocks/esercizio_blocchi.h"

#include <array>

#include "exercises/blocks/forma_blocchi.h"

namespace somme::inline blocchi {

namespace {

constexpr std::array kCambiDetti99{
    CambioBlocchi{{2, u"cambio", true}, &FormaBlocchi::PulsanteCambio}};
constexpr std::array kCambiDetti999{
    CambioBlocchi{{2, u"cambiouda", false}, &FormaBlocchi::PulsanteCambioUDa},
    CambioBlocchi{{51, u"cambiodah", false}, &FormaBlocchi::PulsanteCambioDaH}};

static_assert(kCambiDetti99.size() == kRegoleBlocchiEntro99.cambi.size());
static_assert(kCambiDetti999.size() == kRegoleBlocchiEntro999.cambi.size());

}  // namespace

constinit const EsercizioBlocchi kBlocchiEntro99{
    .regole = kRegoleBlocchiEntro99,
    .titolo = &StringheCondivise::TitoloPLUEntro99,
    .filmatoAddendo = u"swf/dau.swf",
    .filmatoUnione = u"swf/unione.swf",
    .cambi = kCambiDetti99,
};

constinit const EsercizioBlocchi kBlocchiEntro999{
    .regole = kRegoleBlocchiEntro999,
    .titolo = &StringheCondivise::TitoloPLUEntro999,
    .filmatoAddendo = u"swf/hdau.swf",
    .filmatoUnione = u"swf/unionehdau.swf",
    .cambi = kCambiDetti999,
};

}  // namespace somme::inline blocchi
