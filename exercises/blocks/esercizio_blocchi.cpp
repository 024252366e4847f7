#include "exercises/blocks/esercizio_blocchi.h"

#include <array>

namespace somme {

namespace {

constexpr std::array kSpecieEntro99{&blocchi::kUnita, &blocchi::kLunghi};
constexpr std::array kSpecieEntro999{&blocchi::kUnita, &blocchi::kLunghi, &blocchi::kPiatti};

constexpr std::array kSgomberoEntro99{Sgombero{blocchi::kLunghi, 9}, Sgombero{blocchi::kUnita, 19}};
// The flats are not among them: those that a case has shown stay on the joined board until the
// movie is loaded again. That is settled.
constexpr std::array kSgomberoEntro999{Sgombero{blocchi::kLunghi, 19},
                                       Sgombero{blocchi::kUnita, 19}};

constexpr std::array kCambiEntro99{
    CambioBlocchi{blocchi::kUnita, blocchi::kLunghi, 2, u"cambio", true}};
constexpr std::array kCambiEntro999{
    CambioBlocchi{blocchi::kUnita, blocchi::kLunghi, 2, u"cambiouda", false},
    CambioBlocchi{blocchi::kLunghi, blocchi::kPiatti, 51, u"cambiodah", false}};

}  // namespace

constinit const EsercizioBlocchi kBlocchiEntro99{
    .famiglia = Famiglia::BlocchiDecine,
    .titolo = &StringheCondivise::TitoloPLUEntro99,
    .filmatoAddendo = u"swf/dau.swf",
    .filmatoUnione = u"swf/unione.swf",
    .specie = kSpecieEntro99,
    .sgombero = kSgomberoEntro99,
    .cambi = kCambiEntro99,
};

constinit const EsercizioBlocchi kBlocchiEntro999{
    .famiglia = Famiglia::BlocchiCentinaia,
    .titolo = &StringheCondivise::TitoloPLUEntro999,
    .filmatoAddendo = u"swf/hdau.swf",
    .filmatoUnione = u"swf/unionehdau.swf",
    .specie = kSpecieEntro999,
    .sgombero = kSgomberoEntro999,
    .cambi = kCambiEntro999,
};

}  // namespace somme
