#pragma once

#include <cstdint>
#include <optional>

#include "cases/caso.h"
#include "cases/livelli.h"
#include "games/esito.h"
#include "platform/base/chance.h"

namespace somme::inline giochi {

// In what the rules of the number exercises differ: which number of the sum is to be found.
struct RegoleNumeri {
  Famiglia famiglia;  // of `TipoEsercizio`
  qint16 Caso::*cercato;
};

inline constexpr RegoleNumeri kRegoleTotale{Famiglia::NumeriTotale, &Caso::Totale};
inline constexpr RegoleNumeri kRegoleAddendo{Famiglia::NumeriAddendo, &Caso::Addendo2};

// The game of the numbers: an operation with one number to find. A form drives it so:
//
//   PartitaNumeri partita{stato(), kRegoleTotale};  // by touch: PartitaNumeri::Zero::NonSiGiudica
//
//   new case      if (auto cifre = partita.NuovoCaso(tipo, sorte)) so many digits fit into the box;
//                 the question is written
//   confirmation  switch (partita.Rispondi(number)) Risolto, Sbagliato: told. Ignorato: nothing
//   keys          by touch digits, bin and confirmation act while SiRisponde(), the key of the way
//                 on while SiVaAvanti()
class PartitaNumeri {
 public:
  enum class Fase : std::uint8_t { NessunCaso, Domanda, Risolto };
  // By touch an empty box and a 0 are one, so that a case whose answer is 0 cannot be solved there.
  // Kept: see docs/oddities.md.
  enum class Zero : std::uint8_t { SiGiudica, NonSiGiudica };

  // caso: where the case stands; it must outlive the game, as must the rules.
  PartitaNumeri(Caso& caso, const RegoleNumeri& regole, Zero zero = Zero::SiGiudica);

  // Draws a case of the level: how many digits the answer may have, none where the box may keep its
  // limit, since a `tipo` without a level leaves the case as it was.
  std::optional<qint16> NuovoCaso(int tipo, platform::Chance& sorte);

  [[nodiscard]] Fase fase() const { return fase_; }
  [[nodiscard]] bool SiRisponde() const { return fase_ == Fase::Domanda; }
  [[nodiscard]] bool SiVaAvanti() const { return !SiRisponde(); }
  // The number that is to be found.
  [[nodiscard]] qint16 Cercato() const { return caso_.*regole_.cercato; }

  // Judges an answer in any phase: where the box of a solved case can be opened again, what is
  // confirmed in it counts, and the case stays solved. numero: any, also none that 16 bits hold.
  Esito Rispondi(double numero);

 private:
  Caso& caso_;
  const RegoleNumeri& regole_;
  Zero zero_;
  Fase fase_ = Fase::NessunCaso;
};

}  // namespace somme::inline giochi
