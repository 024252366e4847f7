#pragma once

#include "exercises/abacus/forma_abaco.h"
#include "exercises/core/disegno_comune.h"

// Rows that the abacus forms share.
namespace somme::disegno {

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

inline constexpr auto kMenuAbaco = std::to_array<Row>({
    item<&FormaAbaco::MenuAzzera>({.caption = "A&zzera conteggio"}),
    item<&FormaAbaco::mnuStampa>({.caption = "&Stampa"}),
    item<&FormaAbaco::mnuEsci>({.caption = "&Esci"}),
});

}  // namespace somme::disegno
