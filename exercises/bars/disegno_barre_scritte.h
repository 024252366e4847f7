#pragma once

#include "exercises/bars/disegno_barre.h"

// Rows of the bars forms on which the answer is typed.
namespace somme::inline barre::disegno {

using namespace nucleo::disegno;

inline constexpr double kLarghezzaBarreScritte = 10980;
inline constexpr auto kBarreScritte10 = BarreInAlto(705);
inline constexpr auto kBarreScritte20 = BarreInAlto(465);

// F: the form.
template <class F>
inline constexpr auto kRispostaScritta = std::to_array<Row>({
    Casella<F>({4800, 5760, 975, 735}, "Scrivi il numero e premi Invio"),
    Aiuto<F>({6840, 6120, 1935, 975}),
    Avanti<F>({8880, 6120, 1935, 975}),
});

inline constexpr auto kVerdettoScritte = std::to_array<Row>({
    Si({360, 6360, 855, 855}),
    No({360, 6360, 855, 855}),
    Esatti({1560, 6240, 2415, 360}),
    Errati({1560, 6600, 2415, 360}),
    Pannello({0, 0, 11175, 7695}),
    Elenco({360, 240, 5775, 6975}),
    Stampa({7440, 4680, 2580, 1155}),
    Chiudi({7440, 6240, 2580, 1155}),
});

}  // namespace somme::inline barre::disegno
