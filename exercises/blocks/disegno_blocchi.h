#pragma once

#include "exercises/blocks/forma_blocchi_pulsanti.h"
#include "exercises/core/disegno_comune.h"

// Rows that the blocks forms share.
namespace somme::disegno {

inline constexpr Rgb kBlu{0, 0, 255};
inline constexpr FontSpec kNomeBlocco{Face::Tahoma, 15.75, true};

// A rectangle that tells a board its place.
constexpr Look Ancora() {
  return {.hidden = true};
}

// A button that puts a block, in its colour; text: white where the colour is dark.
constexpr Look Blocco(std::string_view nome, std::string_view aiuto, Rgb colore, Rgb testo) {
  return {.caption = nome,
          .toolTip = aiuto,
          .font = kNomeBlocco,
          .fore = testo,
          .back = colore,
          .in = nameOf<&FormaBlocchiPulsanti::PicturePulsanti>};
}
constexpr Look Comando(std::string_view aiuto, std::string_view disegno) {
  return {
      .toolTip = aiuto, .picture = disegno, .in = nameOf<&FormaBlocchiPulsanti::PicturePulsanti>};
}

// The operation above, the three boards with the frame around the one in use. The boards take
// their places from the labels.
inline constexpr auto kTavoleBlocchi = std::to_array<Row>({
    row<&FormaBlocchi::EtOperazione>({2280, 240, 7215, 735}, {.toolTip = "Operazione",
                                                              .font = {Face::Tahoma, 26.25},
                                                              .back = kWhite,
                                                              .align = Align::Centre}),
    row<&FormaBlocchi::Label1>({840, 1320, 4575, 3975}, Ancora()),
    row<&FormaBlocchi::Label2>({6000, 1320, 4575, 3975}, Ancora()),
    row<&FormaBlocchi::Label3>({360, 1200, 10455, 4215}, Ancora()),
    row<&FormaBlocchi::Shape1>({840, 1320, 4575, 3975},
                               {.fore = kVerdeScuro, .hidden = true, .borderWidth = 9}),
    row<&FormaBlocchi::ShockwaveFlash1>({840, 1320, 4575, 3975}, {.toolTip = "Primo addendo"}),
    row<&FormaBlocchi::ShockwaveFlash2>({6000, 1320, 4575, 3975}, {.toolTip = "Secondo addendo"}),
    row<&FormaBlocchi::ShockwaveFlash3>({360, 1200, 10455, 4215},
                                        {.toolTip = "I due addendi insieme", .hidden = true}),
});

constexpr Look ScrittaRisultato(int cifre) {
  return {.toolTip = "Scrivi il risultato e premi Invio",
          .font = {Face::Tahoma, 24},
          .align = Align::Centre,
          .border = true,
          .hidden = true,
          .maxLength = cifre};
}

constexpr Look Cambio(std::string_view aiuto, std::string_view disegno) {
  return {.toolTip = aiuto, .hidden = true, .picture = disegno};
}

// Verdict, counters, print panel.
inline constexpr auto kSottoBlocchi = std::to_array<Row>({
    Si({360, 6720, 855, 855}),
    No({360, 6720, 855, 855}),
    Esatti({1560, 6720, 2415, 375}),
    Errati({1560, 7125, 2415, 375}),
    Pannello({0, 0, 11175, 7695}),
    Elenco({360, 240, 5775, 6975}),
    Stampa({7440, 4680, 2580, 1155}),
    Chiudi({7440, 6240, 2580, 1155}),
});

inline constexpr auto kMenuBlocchi = std::to_array<Row>({
    item<&FormaBlocchi::MenuAzzera>({.caption = "A&zzera conteggio"}),
    item<&FormaBlocchi::mnuStampa>({.caption = "&Stampa"}),
    item<&FormaBlocchi::mnuEsci>({.caption = "&Esci"}),
});

constexpr FormDesign DisegnoBlocchi(std::string_view nome,
                                    std::span<const std::span<const Row>> tavole) {
  return {.name = nome,
          .caption = "Esercitazioni sulle somme",
          .width = 11175,
          .height = 7695,
          .back = kGialloPallido,
          .tables = tavole};
}

}  // namespace somme::disegno
