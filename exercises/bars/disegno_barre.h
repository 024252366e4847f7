#pragma once

#include "exercises/bars/forma_barre_pulsanti.h"

// Rows that the bars forms share.
namespace somme::disegno {

inline constexpr FontSpec kNumeroBarra{Face::Arial, 15.75, true};
inline constexpr FontSpec kNumeroGrande{Face::Tahoma, 20.25, true};

// A bar or a help square inside the white panel.
constexpr Look Barra(Rgb colore, std::string_view nome) {
  return {.toolTip = nome,
          .font = kNumeroBarra,
          .back = colore,
          .align = Align::Centre,
          .border = true,
          .in = nameOf<&FormaBarre::Picture1>};
}
constexpr Look Quadretto(Rgb colore) {
  return {.caption = " ",
          .font = kNumeroBarra,
          .back = colore,
          .align = Align::Centre,
          .border = true,
          .hidden = true,
          .in = nameOf<&FormaBarre::Picture1>};
}
constexpr Look Termine(std::string_view testo) {
  return {.caption = testo,
          .font = kNumeroGrande,
          .back = kWhite,
          .align = Align::Centre,
          .border = true};
}

constexpr Row Aiuto(TwipsRect posto) {
  return row<&FormaBarrePulsanti::PulsanteAiuto>(
      posto, {.caption = "&aiuto", .font = kTahoma14, .picture = "aiuto"});
}

// The kinds of exercise in the menu, in every bars form.
inline constexpr auto kMenuBarre = std::to_array<Row>({
    item<&FormaBarre::MenuAzzera>({.caption = "A&zzera conteggio"}),
    item<&FormaBarre::mnuEsercizio>({.caption = "&Tipo esercizio"}),
    item<&FormaBarre::mnuRossa>({.caption = "trova la barra rossa",
                                 .checked = true,
                                 .in = nameOf<&FormaBarre::mnuEsercizio>}),
    item<&FormaBarre::mnuGiallaVerde>(
        {.caption = "trova le barre gialla e verde", .in = nameOf<&FormaBarre::mnuEsercizio>}),
    item<&FormaBarre::mnuTutteBarre>(
        {.caption = "trova una barra", .in = nameOf<&FormaBarre::mnuEsercizio>}),
    item<&FormaBarre::mnuStampa>({.caption = "&Stampa"}),
});

}  // namespace somme::disegno
