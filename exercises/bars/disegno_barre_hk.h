#pragma once

#include "exercises/bars/disegno_barre_tastiera.h"
#include "exercises/bars/forma_barre_hk.h"

// Rows that the bars forms for the touch keyboard share.
namespace somme::disegno {

inline constexpr double kAltezzaBarreHK = 7905;

inline constexpr auto kPresaBarreHK = std::to_array<Row>({Connessione<FormaBarreHK>()});

inline constexpr auto kFoglioBarreHK = std::to_array<Row>({
    item<&FormaBarreHK::mnuStamopaHK>({.caption = "Stampa Foglio Tastiera &HelpiKeys"}),
});

}  // namespace somme::disegno
