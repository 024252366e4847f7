#pragma once

#include <array>
#include <span>
#include <string_view>

#include "cases/modulo_somme.h"

namespace somme {

// The groups in which the menus show the levels.
enum class Gruppo { Entro10, Entro20, Entro99, Entro999, Entro9999 };

// One level of a family: what its button says, in which group, and what stands behind it. Blanks
// that begin a caption are part of it, also where the caption ends a title.
struct Livello {
  Gruppo gruppo;
  std::string_view didascalia;  // UTF-8
  Generatore genera;
  qint16 cifre;  // MaxLength of the box for the answer, on the number forms
};

// Levels in the order of TipoEsercizio, which counts from 1.
using Livelli = std::span<const Livello>;

// The level of a TipoEsercizio, or nullptr for one that the table does not have: then no case is
// made, and the form shows the one before.
[[nodiscard]] constexpr const Livello* LivelloDi(Livelli livelli, int TipoEsercizio) {
  const bool esiste =
      TipoEsercizio >= 1 && static_cast<std::size_t>(TipoEsercizio) <= livelli.size();
  return esiste ? &livelli[static_cast<std::size_t>(TipoEsercizio) - 1] : nullptr;
}

// Numbers, the sum to find.
inline constexpr std::array<Livello, 27> LivelliNumeriTotale = {{
    {Gruppo::Entro10, "somme", GeneraEntro10, 2},
    {Gruppo::Entro20, "addendi entro il 10", GeneraEntro20, 2},
    {Gruppo::Entro20, "10 + ....", GeneraDieciPiu, 2},
    {Gruppo::Entro20, "addendo > 10", GeneraAddendoMaggiore10, 2},
    {Gruppo::Entro99, "senza cambio", GeneraEntro99SenzaCambio, 2},
    {Gruppo::Entro99, "con il cambio", GeneraEntro99ConCambio, 2},
    {Gruppo::Entro99, "con e senza cambio", GeneraEntro99ConESenzaCambio, 2},
    {Gruppo::Entro99, "aggiungi solo unità", GeneraEntro99SoloUnita, 2},
    {Gruppo::Entro99, "aggiungi solo decine", GeneraEntro99SoloDecine, 2},
    {Gruppo::Entro999, " senza cambio", GeneraEntro999SenzaCambio, 3},
    {Gruppo::Entro999, " cambio alle unità", GeneraEntro999CambioUnita, 3},
    {Gruppo::Entro999, " cambio alle decine", GeneraEntro999CambioDecine, 3},
    {Gruppo::Entro999, " con un cambio", GeneraEntro999UnCambio, 3},
    {Gruppo::Entro999, "con due cambi", GeneraEntro999DueCambi, 3},
    {Gruppo::Entro999, " con e senza cambi", GeneraEntro999ConESenzaCambi, 3},
    {Gruppo::Entro999, " aggiungi solo unità", GeneraEntro999SoloUnita, 3},
    {Gruppo::Entro999, " aggiungi solo decine", GeneraEntro999SoloDecine, 3},
    {Gruppo::Entro999, "aggiungi solo centinaia", GeneraEntro999SoloCentinaia, 3},
    {Gruppo::Entro9999, " senza cambio", GeneraEntro9999SenzaCambio, 5},
    {Gruppo::Entro9999, " con un cambio", GeneraEntro9999UnCambio, 5},
    {Gruppo::Entro9999, "con due cambi", GeneraEntro9999DueCambi, 5},
    {Gruppo::Entro9999, "con tre cambi", GeneraEntro9999TreCambi, 5},
    {Gruppo::Entro9999, " con e senza cambi", GeneraEntro9999ConESenzaCambi, 5},
    {Gruppo::Entro9999, " aggiungi solo unità", GeneraEntro9999SoloUnita, 5},
    {Gruppo::Entro9999, " aggiungi solo decine", GeneraEntro9999SoloDecine, 5},
    {Gruppo::Entro9999, "aggiungi solo centinaia", GeneraEntro9999SoloCentinaia, 5},
    {Gruppo::Entro9999, "aggiungi solo migliaia", GeneraEntro9999SoloMigliaia, 5},
}};

// Numbers, the addend to find.
inline constexpr std::array<Livello, 4> LivelliNumeriAddendo = {{
    {Gruppo::Entro10, "componi il 10", GeneraTotale10, 2},
    {Gruppo::Entro10, "trova un addendo", GeneraEntro10, 2},
    {Gruppo::Entro20, "10 + ... = 18", GeneraDieciPiu, 2},
    {Gruppo::Entro20, "completa il 20", GeneraTotale20, 2},
}};

// The abacus and both boards of blocks take their levels from the sums to find: from the first of
// "Entro 99" to the end, and the groups "Entro 99" and "Entro 999" alone. The menu of the abacus
// takes the captions, too; that of the blocks has captions of its own.
inline constexpr Livelli LivelliAbaco = Livelli(LivelliNumeriTotale).subspan(4);
inline constexpr Livelli LivelliLU = Livelli(LivelliNumeriTotale).subspan(4, 5);
inline constexpr Livelli LivelliHLU = Livelli(LivelliNumeriTotale).subspan(9, 9);

}  // namespace somme
