#pragma once

#include <optional>

#include "exercises/blocks/esercizio_blocchi.h"
#include "platform/boards/board.h"

namespace somme {

// Shows or hides blocks of a kind on a board, from number `da` to number `a`, which may be none.
void MostraBlocchi(platform::Board& filmato, const SpecieBlocchi& specie, int da, int a,
                   bool visibili);

// The board on which the addends are joined: which blocks stand on it, and the stretches of its
// movie that carry. The movie may be anybody's: its frames may take blocks away and bring them
// back, which then are visible whatever they were before. So what stands here is kept here, and the
// movie is made to show it wherever it rests.
class TavolaUnita {
 public:
  TavolaUnita(platform::Board& filmato, const EsercizioBlocchi& esercizio)
      : filmato_(filmato), esercizio_(esercizio) {}

  // The movie has been loaded anew.
  void Ricomincia();
  // A new case: a carry that the last one was left in is broken off, and the blocks go. Those of
  // kinds that no case sweeps away stay.
  void Sgombra();
  // Both addends' blocks are put here.
  void Unisci(const Quantita& quante);

  // The stretch of a carry begins. caso: the number of the case that it belongs to.
  void AvviaCambio(const CambioBlocchi& cambio, int caso);
  // The time that the stretch is given has passed.
  void FinisciAttesa();
  // Whether the movie speaks of this case, and not of an earlier one that was left in a carry.
  [[nodiscard]] bool ParlaDi(int caso) const { return !cambio_ || cambio_->caso == caso; }
  // The movie has told the end of the stretch: ten have become the block with this number.
  void Cambia(const CambioBlocchi& cambio, int nuovo);

  // How many of each kind stand here.
  [[nodiscard]] Quantita Quante() const;

 private:
  void Mostra();
  // None of the others that a case sweeps away is seen.
  void NascondiGliAltri();

  // Of the last stretch; it is over when the movie has told its end and its time has passed.
  struct Corso {
    int caso;
    bool detto = false;
    bool atteso = false;
  };

  platform::Board& filmato_;
  const EsercizioBlocchi& esercizio_;
  Quantita fino_;   // up to which number the blocks of each kind stand here
  Quantita tolte_;  // how many of the first ones a carry has taken
  std::optional<Corso> cambio_;
};

}  // namespace somme
