#pragma once

#include "exercises/core/disegno_scansione.h"
#include "exercises/numbers/disegno_numeri.h"
#include "exercises/numbers/forma_numeri_scansione.h"

// The answer's rows on the scanning number forms; the rest is that of the other number forms.
namespace somme::disegno {

// Smaller than where it is typed, to leave room for the keyboard.
inline constexpr TwipsRect kPostoTestoScandito{3360, 2400, 2175, 1095};

inline constexpr auto kRispostaScansione = std::to_array<Row>({
    row<&FormaNumeriScansione::TestoInputInvisibile>(
        kPostoTestoScandito, {.font = {Face::Tahoma, 20.25}, .hidden = true}),
    row<&FormaNumeriScansione::TestoInput>(kPostoTestoScandito,
                                           {.toolTip = "Il numero scelto con la tastiera"}),
    TastieraNumerica<FormaNumeriScansione>({360, 4440, 9855, 705}, true, kSenzaAiuto),
    row<&FormaNumeriScansione::LabelPerTastieraNumerica>({360, 4320, 9975, 735}, {.hidden = true}),
});

inline constexpr std::array<std::span<const Row>, 4> kTavoleNumeriScansione{
    kDomandaNumeri, kRispostaScansione, kVerdettoNumeri, kMenuNumeri};

constexpr FormDesign DisegnoNumeriScansione(std::string_view nome) {
  return DisegnoNumeri(nome, kTavoleNumeriScansione);
}

}  // namespace somme::disegno
