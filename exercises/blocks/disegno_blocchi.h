#pragma once

#include "exercises/blocks/forma_blocchi.h"
#include "exercises/core/disegno_comune.h"

// Rows that the blocks forms share.
namespace somme::inline blocchi::disegno {

using namespace nucleo::disegno;

// A rectangle that tells a board its place.
constexpr Look Ancora() {
  return {.hidden = true};
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

// The box of the result. F: a form with it; aiuto: how the result comes there.
template <class F>
constexpr Row Risultato(double sinistra, int cifre, std::string_view aiuto) {
  return row<&F::TestoInput>({sinistra, 5520, 1215, 855},
                             {.toolTip = aiuto,
                              .font = {Face::Tahoma, 24},
                              .align = Align::Centre,
                              .border = true,
                              .hidden = true,
                              .maxLength = cifre,
                              .label = nameOf<&FormaBlocchi::EtOperazione>});
}
template <class F>
constexpr Row RisultatoEntro99(std::string_view aiuto) {
  return Risultato<F>(4680, 2, aiuto);
}
template <class F>
constexpr Row RisultatoEntro999(std::string_view aiuto) {
  return Risultato<F>(5160, 3, aiuto);
}

// sfondo: none for a plain button.
constexpr Look Cambio(std::string_view aiuto, std::string_view disegno, std::optional<Rgb> sfondo) {
  return {.toolTip = aiuto, .back = sfondo, .hidden = true, .picture = disegno};
}

// The buttons of the carries, all in one place: no two are shown together.
constexpr auto CambioEntro99(std::optional<Rgb> sfondo = {}) {
  return std::to_array<Row>({
      row<&FormaBlocchi::PulsanteCambio>(
          {4560, 5520, 2055, 975},
          Cambio("Cambia dieci unità in una decina", "cambio_u_da", sfondo)),
  });
}
constexpr auto CambiEntro999(std::optional<Rgb> sfondo = {}) {
  constexpr TwipsRect kPosto{4680, 5520, 2055, 975};
  return std::to_array<Row>({
      row<&FormaBlocchi::PulsanteCambioUDa>(
          kPosto, Cambio("Cambia dieci unità in una decina", "cambio_u_da", sfondo)),
      row<&FormaBlocchi::PulsanteCambioDaH>(
          kPosto, Cambio("Cambia dieci decine in un centinaio", "cambio_da_h", sfondo)),
  });
}
inline constexpr auto kCambioEntro99 = CambioEntro99();
inline constexpr auto kCambiEntro999 = CambiEntro999();

// Verdict, print panel.
inline constexpr auto kSottoBlocchi = std::to_array<Row>({
    Si({360, 6720, 855, 855}),
    No({360, 6720, 855, 855}),
    Pannello({0, 0, 11175, 7695}),
    Elenco({360, 240, 5775, 6975}),
    Stampa({7440, 4680, 2580, 1155}),
    Chiudi({7440, 6240, 2580, 1155}),
});

}  // namespace somme::inline blocchi::disegno
