#pragma once

namespace somme {

class Ambiente;

// The entry routine: refuses a second instance, sets the defaults, seeds chance, reads the shared
// strings and shows the splash form. From its return on everything runs from events.
void Avvia(Ambiente& ambiente);

}  // namespace somme
