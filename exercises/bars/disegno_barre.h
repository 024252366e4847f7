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

// The panel with the bars on top, the written sum under it, on every form but that of the numbered
// buttons.

// unita: height of a bar and side of a help square, twips.
constexpr auto BarreInAlto(double unita) {
  constexpr double kOrigine = 240;
  const double aiutiAddendi = kOrigine + 2 * unita + 10;
  const double aiutiTotale = kOrigine + 3 * unita;
  return std::to_array<Row>({
      row<&FormaBarre::Picture1>({240, 240, 10455, 3495},
                                 {.toolTip = "Barre", .back = kWhite, .border = true}),
      row<&FormaBarre::n1>({kOrigine, kOrigine, unita, unita}, Barra(kCiano, "Barra gialla")),
      row<&FormaBarre::n2>({kOrigine + unita, kOrigine, unita, unita},
                           Barra(kVerde, "Barra verde")),
      row<&FormaBarre::n3>({kOrigine, kOrigine + unita, 2 * unita, unita},
                           Barra(kRosso, "Barra rossa")),
      row<&FormaBarre::aiuto1>(0, {kOrigine, aiutiAddendi, unita, unita}, Quadretto(kCiano)),
      row<&FormaBarre::aiuto2>(0, {kOrigine + unita, aiutiAddendi, unita, unita},
                               Quadretto(kVerde)),
      row<&FormaBarre::aiuto3>(0, {kOrigine, aiutiTotale, unita, unita}, Quadretto(kRosso)),
  });
}

inline constexpr auto kSommaScritta = std::to_array<Row>({
    row<&FormaBarre::Label4>(0, {2760, 4320, 975, 735}, Termine("")),
    row<&FormaBarre::Label4>(1, {3720, 4320, 855, 735}, Termine("+")),
    row<&FormaBarre::Label4>(2, {4560, 4320, 975, 735}, Termine("")),
    row<&FormaBarre::Label4>(3, {5520, 4320, 855, 735}, Termine("=")),
    row<&FormaBarre::Label4>(4, {6360, 4320, 975, 735}, Termine("")),
    row<&FormaBarre::Label3>(
        {360, 5520, 5175, 480},
        {.caption = "Trova il numero che corrisponde alla barra rossa", .font = kTahoma9}),
});

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

inline constexpr auto kEsciBarre = std::to_array<Row>({
    item<&FormaBarre::mnuEsci>({.caption = "&Esci"}),
});

}  // namespace somme::disegno
