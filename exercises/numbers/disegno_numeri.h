#pragma once

#include "exercises/core/disegno_comune.h"
#include "exercises/numbers/forma_numeri.h"

// Rows that all number forms share. Between the operation and the verdict each way of input has its
// own: the box for the answer, and what leads to the next case.
namespace somme::inline numeri::disegno {

using namespace nucleo::disegno;

inline constexpr auto kDomandaNumeri = std::to_array<Row>({
    row<&FormaNumeri::EtOperazione>({960, 600, 7935, 975}, {.toolTip = "Operazione",
                                                            .font = {Face::Tahoma, 26.25},
                                                            .back = kWhite,
                                                            .align = Align::Centre}),
});

inline constexpr TwipsRect kPostoAvantiNumeri{8280, 5520, 1935, 975};

inline constexpr auto kVerdettoNumeri = std::to_array<Row>({
    Esatti({2160, 5640, 2415, 375}),
    Errati({2160, 6000, 2175, 495}),
    Si({960, 5520, 855, 855}),
    No({960, 5520, 855, 855}),
    Pannello({4680, 7920, 11175, 7695}),
    Elenco({360, 240, 5775, 6855}),
    Stampa({7440, 4440, 2580, 1155}),
    Chiudi({7440, 5940, 2580, 1155}),
});

constexpr FormDesign DisegnoNumeri(std::string_view nome,
                                   std::span<const std::span<const Row>> tavole) {
  return {.name = nome,
          .caption = kTitoloProgramma,
          .width = 10725,
          .height = 7365,
          .back = kRosaPallido,
          .tables = tavole};
}

}  // namespace somme::inline numeri::disegno
