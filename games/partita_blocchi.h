#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "cases/caso.h"
#include "games/blocchi_uniti.h"
#include "games/esito.h"
#include "platform/base/chance.h"

namespace somme::inline giochi {

// The game of the blocks: the pupil builds each addend on a board of its own and has it judged,
// sees the boards joined on a third, carries wherever there are ten of a kind, and only then gives
// the result. A form drives it so:
//
//   PartitaBlocchi partita{stato(), kRegoleBlocchiEntro99};
//
//   new case         partita.NuovoCaso(tipo, sorte); no board shows a block but what Uniti() says
//   a block's key    if (auto n = partita.Metti(Posto::Decine)) block n of the kind appears
//   the bin          if (auto tavola = partita.Svuota()) that board is empty
//   confirmation     Sbagliato: told. PassoGiusto: told; in Fase::SecondoAddendo the commands go to
//                    the other board; in Fase::Unione, after a while, partita.Unisci(), and the
//                    joined board shows Uniti(), then "ask":
//   ask              partita.Prosegui(); if (auto quale = partita.CambioDaChiedere()) its button
//                    appears; else the result is asked for
//   carry `quale`    if (!partita.IniziaCambio(quale)) nothing; else the movie plays, and after a
//                    while partita.FinisciAttesa(), then "ask" again
//   the movie's word if (auto n = partita.CambioDetto(quale)) block n of the next kind appears, and
//                    ten are gone
//   the result       partita.Rispondi(number), or partita.Risolvi() where nothing is written
//   movies loaded    partita.FilmatiCaricati()
class PartitaBlocchi {
 public:
  enum class Fase : std::uint8_t {
    PrimoAddendo,
    SecondoAddendo,
    Unione,         // both boards are right
    Cambio,         // `CambioDaChiedere` is asked for
    CambioInCorso,  // the pupil has carried, and the movie shows it
    Risultato,      // the result is asked for
    Risolto,
  };
  // The boards of the addends.
  enum class Tavola : std::uint8_t { Prima, Seconda };

  // Of one kind on the board of an addend.
  static constexpr int kMassimoPerSpecie = 9;

  // caso: where the case stands; it must outlive the game, as must the rules.
  PartitaBlocchi(Caso& caso, const RegoleBlocchi& regole);

  // Empties the boards and draws a case of the level; a `tipo` without a level leaves the case as
  // it was.
  void NuovoCaso(int tipo, platform::Chance& sorte);
  void FilmatiCaricati() { uniti_.Ricomincia(); }

  [[nodiscard]] Fase fase() const { return fase_; }
  // The board that is being built; none once both are right.
  [[nodiscard]] std::optional<Tavola> InUso() const;
  [[nodiscard]] const Quantita& Su(Tavola tavola) const {
    return tavole_[static_cast<std::size_t>(tavola)];
  }
  // The joined board.
  [[nodiscard]] const BlocchiUniti& Uniti() const { return uniti_; }

  // One more block of a kind on the board in use: its number there, 1 to `kMassimoPerSpecie`; none
  // where the board is full of them, the exercise has no such kind, or no board is in use.
  std::optional<int> Metti(Posto specie);
  // Takes all blocks off the board in use: that board, or none.
  std::optional<Tavola> Svuota();
  // Judges the board in use.
  Esito Conferma();

  // After a right second board: joins them. Nothing in another phase.
  void Unisci();
  // Goes on, once the boards are joined and after each carry: to the next carry that is needed, or
  // to the result. Nothing in another phase.
  void Prosegui();
  // The carry that the pupil must do now, by its place among those of the rules. Ten of a kind need
  // one; only what the pupil has put on the boards counts, so that nine longs and a carried one
  // need none. Kept: see docs/oddities.md.
  [[nodiscard]] std::optional<std::size_t> CambioDaChiedere() const;
  // The pupil carries: false for a carry that is not asked for.
  bool IniziaCambio(std::size_t quale);
  // The time that a carry is given has passed.
  void FinisciAttesa() { uniti_.FinisciAttesa(); }
  // The movie says that ten have become one: the number of the new block on the joined board; none
  // for the word of an earlier case. quale: a carry of the rules, whatever is asked for.
  std::optional<int> CambioDetto(std::size_t quale);

  // Judges the result, rounded to a whole number of 16 bits; a blank box is no answer. Only while
  // the result is asked for. Throws RunTimeError(Overflow) for a number that 16 bits do not hold.
  Esito Rispondi(std::optional<double> numero);
  // The result is asked for and shown instead of written: the case is solved.
  Esito Risolvi();
  // The digits of the result, from the largest kind of block.
  [[nodiscard]] Cifre CifreDelRisultato() const {
    return CifreDi(caso_.Totale, regole_.specie.back());
  }

 private:
  [[nodiscard]] int SuEntrambe(Posto specie) const;

  Caso& caso_;
  const RegoleBlocchi& regole_;
  std::array<Quantita, 2> tavole_;
  BlocchiUniti uniti_;
  Fase fase_ = Fase::PrimoAddendo;
  std::size_t cambio_ = 0;  // the carry that is asked for, or that is looked at next
};

}  // namespace somme::inline giochi
