#pragma once

namespace somme::inline condiviso {
class Ambiente;
}

namespace somme::inline programma {

// The entry routine: refuses a second instance, sets the defaults, seeds chance, reads the shared
// strings and shows the splash form. From its return on everything runs from events.
void Avvia(Ambiente& ambiente);

}  // namespace somme::inline programma
