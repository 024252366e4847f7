#pragma once

#include "exercises/bars/disegno_barre.h"
#include "exercises/bars/forma_barre_tastiera.h"

// Rows of the bars forms with a box for the answer: the panel on top, the written sum under it.
namespace somme::disegno {

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

inline constexpr auto kEsciBarre = std::to_array<Row>({
    item<&FormaBarre::mnuEsci>({.caption = "&Esci"}),
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
