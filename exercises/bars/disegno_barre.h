#pragma once

#include "exercises/bars/forma_barre_tastiera.h"

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

// The panel with the written sum under it, on every form but that of the numbered buttons.
inline constexpr auto kSommaSotto = std::to_array<Row>({
    row<&FormaBarre::Picture1>({240, 240, 10455, 3495},
                               {.toolTip = "Barre", .back = kWhite, .border = true}),
    row<&FormaBarre::Label4>(0, {2760, 4320, 975, 735}, Termine("")),
    row<&FormaBarre::Label4>(1, {3720, 4320, 855, 735}, Termine("+")),
    row<&FormaBarre::Label4>(2, {4560, 4320, 975, 735}, Termine("")),
    row<&FormaBarre::Label4>(3, {5520, 4320, 855, 735}, Termine("=")),
    row<&FormaBarre::Label4>(4, {6360, 4320, 975, 735}, Termine("")),
    row<&FormaBarre::Label3>(
        {360, 5520, 5175, 480},
        {.caption = "Trova il numero che corrisponde alla barra rossa", .font = kTahoma9}),
});

// The bars and the first squares of help inside that panel, for sums up to 10 and up to 20.
inline constexpr auto kBarre10Basse = std::to_array<Row>({
    row<&FormaBarre::n1>({240, 240, 705, 705}, Barra(kCiano, "Barra gialla")),
    row<&FormaBarre::n2>({945, 240, 705, 705}, Barra(kVerde, "Barra verde")),
    row<&FormaBarre::n3>({240, 945, 1410, 705}, Barra(kRosso, "Barra rossa")),
    row<&FormaBarre::aiuto1>(0, {240, 1660, 705, 705}, Quadretto(kCiano)),
    row<&FormaBarre::aiuto2>(0, {945, 1660, 705, 705}, Quadretto(kVerde)),
    row<&FormaBarre::aiuto3>(0, {240, 2355, 705, 705}, Quadretto(kRosso)),
});
inline constexpr auto kBarre20 = std::to_array<Row>({
    row<&FormaBarre::n1>({240, 240, 465, 465}, Barra(kCiano, "Barra gialla")),
    row<&FormaBarre::n2>({705, 240, 465, 465}, Barra(kVerde, "Barra verde")),
    row<&FormaBarre::n3>({240, 705, 930, 465}, Barra(kRosso, "Barra rossa")),
    row<&FormaBarre::aiuto1>(0, {240, 1180, 465, 465}, Quadretto(kCiano)),
    row<&FormaBarre::aiuto2>(0, {705, 1180, 465, 465}, Quadretto(kVerde)),
    row<&FormaBarre::aiuto3>(0, {240, 1635, 465, 465}, Quadretto(kRosso)),
});

// What stands below the written sum where the answer is typed.
inline constexpr auto kRestoTastiera = std::to_array<Row>({
    row<&FormaBarreTastiera::TestoInput>({4800, 5760, 975, 735},
                                         {.toolTip = "Scrivi il numero e premi Invio",
                                          .font = kNumeroGrande,
                                          .align = Align::Centre,
                                          .border = true,
                                          .maxLength = 2}),
    Aiuto({6840, 6120, 1935, 975}),
    Avanti<FormaBarreTastiera>({8880, 6120, 1935, 975}),
    Si({360, 6360, 855, 855}),
    No({360, 6360, 855, 855}),
    Esatti({1560, 6240, 2415, 360}),
    Errati({1560, 6600, 2415, 360}),
    Pannello({0, 0, 11175, 7695}),
    Elenco({360, 240, 5775, 6975}),
    Stampa({7440, 4680, 2580, 1155}),
    Chiudi({7440, 6240, 2580, 1155}),
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

inline constexpr auto kUscita = std::to_array<Row>({
    item<&FormaBarre::mnuEsci>({.caption = "&Esci"}),
});

}  // namespace somme::disegno
