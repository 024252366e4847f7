#pragma once

#include "exercises/numbers/disegno_numeri.h"
#include "exercises/numbers/forma_numeri_hk.h"

// The design of the number forms for the touch keyboard: they differ in nothing.
namespace somme::disegno {

inline constexpr auto kCasellaHK = std::to_array<Row>({
    row<&FormaNumeriHK::TestoInput>({3240, 3600, 3015, 1095},
                                    {.toolTip = "Il numero che hai toccato",
                                     .font = {Face::Tahoma, 36},
                                     .align = Align::Centre,
                                     .border = true,
                                     .locked = true}),
    Avanti<FormaNumeriHK>(kPostoAvantiNumeri),
    Connessione<FormaNumeriHK>(),
});

inline constexpr auto kFoglioNumeriHK = std::to_array<Row>({
    item<&FormaNumeriHK::mnuStampaHK>({.caption = "Stampa Foglio Tastiera &HelpiKeys"}),
});

inline constexpr std::array<std::span<const Row>, 5> kTavoleNumeriHK{
    kDomandaNumeri, kCasellaHK, kVerdettoNumeri, kFoglioNumeriHK, kMenuNumeri};

}  // namespace somme::disegno
