#pragma once

#include "exercises/blocks/disegno_blocchi.h"
#include "exercises/blocks/forma_blocchi_hk.h"

// Rows that the blocks forms for the touch keyboard share.
namespace somme::disegno {

inline constexpr auto kPresaBlocchi = std::to_array<Row>({Connessione<FormaBlocchiHK>()});

constexpr Row CifraRisultato(int indice, double sinistra) {
  return row<&FormaBlocchiHK::Label4>(
      indice, {sinistra, 5520, 975, 855},
      {.font = {Face::Tahoma, 36, true}, .align = Align::Centre, .hidden = true});
}
inline constexpr auto kRisultatoHK = std::to_array<Row>({
    CifraRisultato(0, 4080),
    CifraRisultato(1, 5040),
    CifraRisultato(2, 6000),
    Avanti<FormaBlocchiHK>(kPostoAvantiBlocchi),
});

inline constexpr auto kFoglioBlocchi = std::to_array<Row>({
    item<&FormaBlocchiHK::mnuStampaHK>({.caption = "Stampa Foglio Tastiera &HelpiKeys"}),
});

}  // namespace somme::disegno
