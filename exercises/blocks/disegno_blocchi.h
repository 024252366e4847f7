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

// The buttons of the carries, all in one place: no two are shown together.
template <class F>
constexpr Row CambioEntro99() {
  return row<&F::PulsanteCambio>({4560, 5520, 2055, 975},
                                 Cambio("Cambia dieci unità in una decina", "cambio_u_da"));
}
inline constexpr TwipsRect kPostoCambio{4680, 5520, 2055, 975};
template <class F>
constexpr Row CambioUDa() {
  return row<&F::PulsanteCambioUDa>(kPostoCambio,
                                    Cambio("Cambia dieci unità in una decina", "cambio_u_da"));
}
template <class F>
constexpr Row CambioDaH() {
  return row<&F::PulsanteCambioDaH>(kPostoCambio,
                                    Cambio("Cambia dieci decine in un centinaio", "cambio_da_h"));
}

// What the blocks are put with by buttons, up to 99.
inline constexpr auto kComandiEntro99 = std::to_array<Row>({
    row<&FormaBlocchiPulsanti::PicturePulsanti>({840, 5640, 4575, 615},
                                                {.toolTip = "Blocchi", .back = kGialloPallido}),
    row<&FormaBlocchiPulsanti::PulsanteDa>({180, 0, 975, 615},
                                           Blocco("da", "Metti una decina", kRosso, kBlack)),
    row<&FormaBlocchiPulsanti::PulsanteU>({1260, 0, 975, 615},
                                          Blocco("u", "Metti un'unità", kBlu, kWhite)),
    row<&FormaBlocchiPulsanti::PulsanteCestino>({2340, 0, 975, 615}, Comando("Svuota", "cestino")),
    row<&FormaBlocchiPulsanti::PulsanteConferma>({3420, 0, 975, 615},
                                                 Comando("Conferma", "conferma")),
});
// The same up to 999; F: a form with the button for the flats.
template <class F>
inline constexpr auto kComandiEntro999 = std::to_array<Row>({
    row<&F::PicturePulsanti>({720, 5520, 4575, 615},
                             {.toolTip = "Blocchi", .back = kGialloPallido}),
    row<&F::PulsanteH>({240, 0, 735, 615}, Blocco("h", "Metti un centinaio", kVerde, kBlack)),
    row<&F::PulsanteDa>({1080, 0, 735, 615}, Blocco("da", "Metti una decina", kRosso, kBlack)),
    row<&F::PulsanteU>({1920, 0, 735, 615}, Blocco("u", "Metti un'unità", kBlu, kWhite)),
    row<&F::PulsanteCestino>({2760, 0, 735, 615}, Comando("Svuota", "cestino")),
    row<&F::PulsanteConferma>({3600, 0, 735, 615}, Comando("Conferma", "conferma")),
});

inline constexpr TwipsRect kPostoAvantiBlocchi{8880, 6600, 1935, 975};

inline constexpr auto kContiBlocchi = std::to_array<Row>({
    Esatti({1560, 6720, 2415, 375}),
    Errati({1560, 7125, 2415, 375}),
});

// Verdict, print panel.
inline constexpr auto kSottoBlocchi = std::to_array<Row>({
    Si({360, 6720, 855, 855}),
    No({360, 6720, 855, 855}),
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
