#pragma once

#include "exercises/bars/disegno_barre_pulsanti.h"
#include "exercises/bars/forma_barre_tastiera.h"

// Rows of the bars forms on which the answer is typed.
namespace somme::disegno {

inline constexpr auto kRispostaScritta = std::to_array<Row>({
    row<&FormaBarreTastiera::TestoInput>({4800, 5760, 975, 735},
                                         {.toolTip = "Scrivi il numero e premi Invio",
                                          .font = kNumeroGrande,
                                          .align = Align::Centre,
                                          .border = true,
                                          .maxLength = 2}),
    Aiuto({6840, 6120, 1935, 975}),
    Avanti<FormaBarreTastiera>({8880, 6120, 1935, 975}),
});

inline constexpr auto kVerdettoBarre = std::to_array<Row>({
    Si({360, 6360, 855, 855}),
    No({360, 6360, 855, 855}),
    Esatti({1560, 6240, 2415, 360}),
    Errati({1560, 6600, 2415, 360}),
    Pannello({0, 0, 11175, 7695}),
    Elenco({360, 240, 5775, 6975}),
    Stampa({7440, 4680, 2580, 1155}),
    Chiudi({7440, 6240, 2580, 1155}),
});

// altezza: of the client area, twips.
constexpr FormDesign DisegnoBarreTastiera(std::string_view nome, double altezza,
                                          std::span<const std::span<const Row>> tavole) {
  return {.name = nome,
          .caption = "Esercitazioni sulle somme",
          .width = 10980,
          .height = altezza,
          .back = kGialloPallido,
          .tables = tavole};
}

}  // namespace somme::disegno
