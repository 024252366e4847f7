#pragma once

#include "exercises/bars/disegno_barre.h"
#include "exercises/bars/forma_barre_scansione.h"
#include "exercises/core/disegno_scansione.h"

// Rows that the scanning bars forms share.
namespace somme::disegno {

// What stands below the written sum, left of the keyboard.
inline constexpr auto kRestoScansione = std::to_array<Row>({
    row<&FormaBarreScansione::TestoInput>({4800, 5400, 975, 735},
                                          {.toolTip = "Il numero scelto con la tastiera",
                                           .font = kNumeroGrande,
                                           .align = Align::Centre,
                                           .border = true,
                                           .locked = true,
                                           .maxLength = 2}),
    Si({240, 6120, 795, 795}),
    No({240, 6120, 795, 795}),
    Esatti({1140, 6120, 1740, 390}),
    Errati({1140, 6540, 1740, 390}),
    Pannello({0, 0, 11175, 7695}),
    Elenco({360, 240, 5775, 6975}),
    // Low enough for the lower of the two forms.
    Stampa({7440, 4680, 2580, 975}),
    Chiudi({7440, 6240, 2580, 975}),
});

}  // namespace somme::disegno
