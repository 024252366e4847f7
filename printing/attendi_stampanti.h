#pragma once

#include <functional>

namespace somme::inline condiviso {
class Ambiente;
}

namespace somme::inline stampa {

// Lets something work that asks printers and may take many seconds: deaf to the user, with the
// hourglass and, from half a second on, with words on the screen that say what is waited for
// (section "Printers" of the language file, key `Attesa`).
void AttendiStampanti(Ambiente& ambiente, const std::function<void()>& lavoro);

}  // namespace somme::inline stampa
