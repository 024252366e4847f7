#pragma once

#include "exercises/blocks/disegno_blocchi.h"
#include "exercises/blocks/pulsanti_blocchi.h"

// Rows that the blocks forms with buttons for the blocks share.
namespace somme::inline blocchi::disegno {

using namespace nucleo::disegno;

inline constexpr FontSpec kNomeBlocco{Face::Tahoma, 15.75, true};

// A button that puts a block, in its colour; text: white where the colour is dark.
constexpr Look Blocco(std::string_view nome, std::string_view aiuto, Rgb colore, Rgb testo) {
  return {.caption = nome,
          .toolTip = aiuto,
          .font = kNomeBlocco,
          .fore = testo,
          .back = colore,
          .in = nameOf<&PulsantiBlocchi::PicturePulsanti>};
}
constexpr Look Comando(std::string_view aiuto, std::string_view disegno) {
  return {.toolTip = aiuto, .picture = disegno, .in = nameOf<&PulsantiBlocchi::PicturePulsanti>};
}

// What the blocks are put with by buttons, up to 99. F: a form with them.
template <class F>
inline constexpr auto kComandiEntro99 = std::to_array<Row>({
    row<&F::pulsanti, &PulsantiBlocchi::PicturePulsanti>(
        {840, 5640, 4575, 615}, {.toolTip = "Blocchi", .back = kGialloPallido}),
    row<&F::pulsanti, &PulsantiBlocchi::PulsanteDa>(
        {180, 0, 975, 615}, Blocco("da", "Metti una decina", kRosso, kBlack)),
    row<&F::pulsanti, &PulsantiBlocchi::PulsanteU>({1260, 0, 975, 615},
                                                   Blocco("u", "Metti un'unità", kBlu, kWhite)),
    row<&F::pulsanti, &PulsantiBlocchi::PulsanteCestino>({2340, 0, 975, 615},
                                                         Comando("Svuota", "cestino")),
    row<&F::pulsanti, &PulsantiBlocchi::PulsanteConferma>({3420, 0, 975, 615},
                                                          Comando("Conferma", "conferma")),
});
// The same up to 999.
template <class F>
inline constexpr auto kComandiEntro999 = std::to_array<Row>({
    row<&F::pulsanti, &PulsantiBlocchi::PicturePulsanti>(
        {720, 5520, 4575, 615}, {.toolTip = "Blocchi", .back = kGialloPallido}),
    row<&F::pulsanti, &PulsantiBlocchi::PulsanteH>(
        {240, 0, 735, 615}, Blocco("h", "Metti un centinaio", kVerde, kBlack)),
    row<&F::pulsanti, &PulsantiBlocchi::PulsanteDa>(
        {1080, 0, 735, 615}, Blocco("da", "Metti una decina", kRosso, kBlack)),
    row<&F::pulsanti, &PulsantiBlocchi::PulsanteU>({1920, 0, 735, 615},
                                                   Blocco("u", "Metti un'unità", kBlu, kWhite)),
    row<&F::pulsanti, &PulsantiBlocchi::PulsanteCestino>({2760, 0, 735, 615},
                                                         Comando("Svuota", "cestino")),
    row<&F::pulsanti, &PulsantiBlocchi::PulsanteConferma>({3600, 0, 735, 615},
                                                          Comando("Conferma", "conferma")),
});

inline constexpr TwipsRect kPostoAvantiBlocchi{8880, 6600, 1935, 975};

inline constexpr auto kContiBlocchi = std::to_array<Row>({
    Esatti({1560, 6720, 2415, 375}),
    Errati({1560, 7125, 2415, 375}),
});

}  // namespace somme::inline blocchi::disegno
