#pragma once

#include "exercises/bars/forma_barre.h"

// Rows that the bars forms share.
namespace somme::inline barre::disegno {

using namespace nucleo::disegno;

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
constexpr Look TermineScritto(std::string_view testo) {
  return {.caption = testo,
          .font = kNumeroGrande,
          .back = kWhite,
          .align = Align::Centre,
          .border = true};
}

// The white panel with what stands in it. sinistra, alto: of the panel; origine: of the bars in it,
// from the left and from the top; unita: height of a bar and side of a help square. All in twips.
constexpr auto Barre(double sinistra, double alto, double origine, double unita) {
  const double aiutiAddendi = origine + 2 * unita + 10;
  const double aiutiTotale = origine + 3 * unita;
  return std::to_array<Row>({
      row<&FormaBarre::Picture1>({sinistra, alto, 10455, 3495},
                                 {.toolTip = "Barre", .back = kWhite, .border = true}),
      row<&FormaBarre::n1>({origine, origine, unita, unita}, Barra(kCiano, "Barra gialla")),
      row<&FormaBarre::n2>({origine + unita, origine, unita, unita}, Barra(kVerde, "Barra verde")),
      row<&FormaBarre::n3>({origine, origine + unita, 2 * unita, unita},
                           Barra(kRosso, "Barra rossa")),
      row<&FormaBarre::aiuto1>(0, {origine, aiutiAddendi, unita, unita}, Quadretto(kCiano)),
      row<&FormaBarre::aiuto2>(0, {origine + unita, aiutiAddendi, unita, unita}, Quadretto(kVerde)),
      row<&FormaBarre::aiuto3>(0, {origine, aiutiTotale, unita, unita}, Quadretto(kRosso)),
  });
}

// The written sum; sinistra, alto: of its first term, twips.
constexpr auto SommaScritta(double sinistra, double alto) {
  return std::to_array<Row>({
      row<&FormaBarre::Label4>(0, {sinistra, alto, 975, 735}, TermineScritto("")),
      row<&FormaBarre::Label4>(1, {sinistra + 960, alto, 855, 735}, TermineScritto("+")),
      row<&FormaBarre::Label4>(2, {sinistra + 1800, alto, 975, 735}, TermineScritto("")),
      row<&FormaBarre::Label4>(3, {sinistra + 2760, alto, 855, 735}, TermineScritto("=")),
      row<&FormaBarre::Label4>(4, {sinistra + 3600, alto, 975, 735}, TermineScritto("")),
  });
}

// da, a: where the mark of the ten begins and ends inside the panel, twips; across, the form puts
// it where ten units end.
constexpr Row Segno(double da, double a, bool nascosto = true) {
  return row<&FormaBarre::Line1>({4890, da, 0, a - da}, {.toolTip = "Qui finisce la decina",
                                                         .hidden = nascosto,
                                                         .borderWidth = 2,
                                                         .in = nameOf<&FormaBarre::Picture1>});
}

constexpr Row Consegna(double alto, std::string_view testo) {
  return row<&FormaBarre::Label3>({360, alto, 5175, 480}, {.caption = testo, .font = kTahoma9});
}

// On every form but that of the numbered buttons the panel is on top, the written sum under it.
constexpr auto BarreInAlto(double unita) {
  return Barre(240, 240, 240, unita);
}
inline constexpr auto kSommaSotto = SommaScritta(2760, 4320);
inline constexpr auto kConsegnaSotto =
    std::to_array<Row>({Consegna(5520, "Trova il numero che corrisponde alla barra rossa")});

// F: a form with `PulsanteAiuto`.
template <class F>
constexpr Row Aiuto(TwipsRect posto) {
  return row<&F::PulsanteAiuto>(posto,
                                {.caption = "&aiuto", .font = kTahoma14, .picture = "aiuto"});
}

// The box for the answer; the form lays it over the empty term. scansione: whether the program
// alone writes in it.
template <class F>
constexpr Row Casella(TwipsRect posto, std::string_view nome, bool scansione = false) {
  return row<&F::TestoInput>(posto, {.toolTip = nome,
                                     .font = kNumeroGrande,
                                     .align = Align::Centre,
                                     .border = true,
                                     .locked = scansione,
                                     .maxLength = 2,
                                     .label = nameOf<&FormaBarre::Label4>});
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

inline constexpr auto kEsciBarre = std::to_array<Row>({
    item<&FormaBarre::mnuEsci>({.caption = "&Esci"}),
});

}  // namespace somme::inline barre::disegno
