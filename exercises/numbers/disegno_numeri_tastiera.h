#pragma once

#include "exercises/numbers/disegno_numeri.h"
#include "exercises/numbers/forma_numeri_tastiera.h"

// The design of the number forms for mouse and keyboard: they differ in nothing.
namespace somme::disegno {

inline constexpr TwipsRect kPostoTestoInput{3360, 2760, 2655, 1095};

inline constexpr auto kCasellaTastiera = std::to_array<Row>({
    row<&FormaNumeriTastiera::TestoInputInvisibile>(kPostoTestoInput,
                                                    {.font = {Face::Tahoma, 36}, .hidden = true}),
    row<&FormaNumeriTastiera::TestoInput>(kPostoTestoInput,
                                          {.toolTip = "Scrivi il numero e premi Invio"}),
    Avanti<FormaNumeriTastiera>(kPostoAvantiNumeri),
});

inline constexpr std::array<std::span<const Row>, 4> kTavoleNumeriTastiera{
    kDomandaNumeri, kCasellaTastiera, kVerdettoNumeri, kMenuNumeri};

}  // namespace somme::disegno
