#pragma once

#include <optional>

#include "games/regole_blocchi.h"

namespace somme::inline giochi {

// What stands on the board on which the addends are joined, and the carries on it. Blocks of a kind
// are numbered from 1 in the order in which they stand: those from `Tolti` + 1 to `FinoA` are seen.
//
// A carry is shown by a stretch of a movie, which takes its time and tells its end by a word; the
// movie may be anybody's, and its words come when they come. So the board knows for itself what
// stands on it.
class BlocchiUniti {
 public:
  explicit BlocchiUniti(const RegoleBlocchi& regole) : regole_(regole) {}

  // The movie was loaded anew: nothing is left of what came before, also no flats.
  void Ricomincia();
  // A new case takes the blocks off, all but those of kinds that stay; what the movie says of a
  // carry of the case before is not listened to any more.
  void Sgombra();
  // Both addends' blocks are put here.
  void Unisci(const Quantita& quanti);

  // The stretch of a carry begins; the time that it is given has passed.
  void AvviaCambio();
  void FinisciAttesa();
  // The movie's word: ten of a kind are gone, and the block of the next kind with the number
  // `nuovo` stands here. False for the word of a carry that an earlier case was left in: nothing
  // happens.
  bool Cambia(Posto da, int nuovo);
  // Whether the last stretch was broken off: its word or its time is still to come.
  [[nodiscard]] bool CambioInterrotto() const {
    return corso_ && !(corso_->detto && corso_->atteso);
  }

  [[nodiscard]] int FinoA(Posto specie) const { return fino_[specie]; }
  [[nodiscard]] int Tolti(Posto specie) const { return tolti_[specie]; }
  // How many of each kind stand here.
  [[nodiscard]] Quantita Quanti() const;

 private:
  // Of the last stretch.
  struct Corso {
    bool diQuestoCaso = true;
    bool detto = false;
    bool atteso = false;
  };

  const RegoleBlocchi& regole_;
  Quantita fino_;
  Quantita tolti_;
  std::optional<Corso> corso_;
};

}  // namespace somme::inline giochi
