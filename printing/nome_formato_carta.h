#pragma once

#include <QString>

#include "platform/base/printers.h"

namespace somme::inline stampa {

// What a kind of paper is called, from its code; "Unknown" for a code without a name.
[[nodiscard]] QString NomeFormatoCarta(int codice);

// For choosing among what a printer takes: the name of its kind, or what the printer itself calls
// it.
[[nodiscard]] QString NomeDellaCarta(const platform::Paper& carta);

}  // namespace somme::inline stampa
