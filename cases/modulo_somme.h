#pragma once

#include "cases/caso.h"
#include "platform/base/chance.h"

namespace somme::inline casi {

// The kinds of addition that the exercises on numbers, blocks and abacus ask for. Each routine
// draws one case from the source of chance and writes all three of its values; none keeps a memory
// of earlier cases, and none can fail. How a case is drawn, and in which order, stands with the
// rules in the implementation.
//
// The three "SenzaCambio" routines do not return for a sum whose digits are all 0 or 1: kept
// (docs/oddities.md).
using Generatore = void (*)(Caso& caso, platform::Chance& chance);

void GeneraEntro10(Caso& caso, platform::Chance& chance);
void GeneraTotale10(Caso& caso, platform::Chance& chance);

void GeneraEntro20(Caso& caso, platform::Chance& chance);
void GeneraDieciPiu(Caso& caso, platform::Chance& chance);
void GeneraAddendoMaggiore10(Caso& caso, platform::Chance& chance);
void GeneraTotale20(Caso& caso, platform::Chance& chance);

void GeneraEntro99SenzaCambio(Caso& caso, platform::Chance& chance);
void GeneraEntro99ConCambio(Caso& caso, platform::Chance& chance);
void GeneraEntro99ConESenzaCambio(Caso& caso, platform::Chance& chance);
void GeneraEntro99SoloUnita(Caso& caso, platform::Chance& chance);
void GeneraEntro99SoloDecine(Caso& caso, platform::Chance& chance);

void GeneraEntro999SenzaCambio(Caso& caso, platform::Chance& chance);
void GeneraEntro999CambioUnita(Caso& caso, platform::Chance& chance);
void GeneraEntro999CambioDecine(Caso& caso, platform::Chance& chance);
void GeneraEntro999UnCambio(Caso& caso, platform::Chance& chance);
void GeneraEntro999DueCambi(Caso& caso, platform::Chance& chance);
void GeneraEntro999ConESenzaCambi(Caso& caso, platform::Chance& chance);
void GeneraEntro999SoloUnita(Caso& caso, platform::Chance& chance);
void GeneraEntro999SoloDecine(Caso& caso, platform::Chance& chance);
void GeneraEntro999SoloCentinaia(Caso& caso, platform::Chance& chance);

void GeneraEntro9999SenzaCambio(Caso& caso, platform::Chance& chance);
void GeneraEntro9999UnCambio(Caso& caso, platform::Chance& chance);
void GeneraEntro9999DueCambi(Caso& caso, platform::Chance& chance);
void GeneraEntro9999TreCambi(Caso& caso, platform::Chance& chance);
void GeneraEntro9999ConESenzaCambi(Caso& caso, platform::Chance& chance);
void GeneraEntro9999SoloUnita(Caso& caso, platform::Chance& chance);
void GeneraEntro9999SoloDecine(Caso& caso, platform::Chance& chance);
void GeneraEntro9999SoloCentinaia(Caso& caso, platform::Chance& chance);
void GeneraEntro9999SoloMigliaia(Caso& caso, platform::Chance& chance);

}  // namespace somme::inline casi
