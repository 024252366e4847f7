#pragma once

#include "exercises/abacus/forma_abaco.h"
#include "exercises/core/disegno_comune.h"

// Rows that the abacus forms share.
namespace somme::inline abaco::disegno {

using namespace nucleo::disegno;

constexpr Row Ancora(TwipsRect posto) {
  return row<&FormaAbaco::Label1>(posto, {.hidden = true});
}
constexpr Row Abaco(TwipsRect posto) {
  return row<&FormaAbaco::ShockwaveFlash1>(posto, {.toolTip = "Abaco"});
}
constexpr Row Operazione(TwipsRect posto) {
  return row<&FormaAbaco::EtOperazione>(
      posto,
      {.toolTip = "Operazione", .font = {Face::Tahoma, 24}, .back = kWhite, .align = Align::Right});
}

inline constexpr auto kPannelloAbaco = std::to_array<Row>({
    Pannello({0, 0, 10860, 7650}),
    Elenco({360, 240, 5775, 6975}),
    Stampa({7440, 4680, 2580, 1155}),
    Chiudi({7440, 6240, 2580, 1155}),
});

constexpr FormDesign DisegnoAbaco(std::string_view nome,
                                  std::span<const std::span<const Row>> tavole) {
  return {.name = nome,
          .caption = kTitoloProgramma,
          .width = 10860,
          .height = 7650,
          .back = kRosaPallido,
          .tables = tavole};
}

}  // namespace somme::inline abaco::disegno
