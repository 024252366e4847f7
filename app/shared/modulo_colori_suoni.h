#pragma once

#include <QString>

namespace somme::inline condiviso {

class Ambiente;

// Waits while events go on, sleeping between them. The limit is not corrected at midnight: a wait
// that spans it ends when the clock reaches the limit again: kept (docs/oddities.md). A wait of 0
// or less returns at once, without letting events run. Does not return into a handler whose form or
// case has gone meanwhile.
void Attendi(Ambiente& ambiente, double secondi);

// Plays "si" or "no", if sounds are on. A new sound cuts off one still playing.
void RiproduciSuono(Ambiente& ambiente, const QString& nome);

}  // namespace somme::inline condiviso
