#pragma once

#include <QStringView>

#include "games/blocchi_uniti.h"
#include "platform/boards/board.h"

namespace somme::inline blocchi {

// Shows or hides blocks of a kind on a board, from number `da` to number `a`, which may be none.
void MostraBlocchi(platform::Board& filmato, Posto specie, int da, int a, bool visibili);

// A stretch of the joined board's movie that shows a carry, and ends with the movie's word.
struct TrattoDelCambio {
  int fotogramma;      // where it begins
  QStringView parola;  // the argument of the movie's command
  bool tornaAlPrimo;   // the form sends the movie to frame 1 at the word; else it stops by itself
};

// The movie of the board on which the addends are joined. It may be anybody's: its frames may take
// blocks away and bring them back, which then are visible whatever they were before. So the game
// knows what stands there, and the movie is made to show it wherever it rests.
class TavolaUnita {
 public:
  // All three are kept by reference.
  TavolaUnita(platform::Board& filmato, const RegoleBlocchi& regole, const BlocchiUniti& blocchi)
      : filmato_(filmato), regole_(regole), blocchi_(blocchi) {}

  // A new case: a carry that the last one was left in is broken off.
  void Ricomincia();
  // Both addends' blocks are there.
  void Mostra();
  // The stretch of a carry begins.
  void AvviaCambio(const TrattoDelCambio& tratto);
  // The movie has told the end of the stretch: ten of `da` have become the block `nuovo` of the
  // next kind.
  void Cambia(const TrattoDelCambio& tratto, Posto da, int nuovo);
  // Hides whatever a case sweeps away and does not stand there. What a stretch has taken away may
  // come back after its word.
  void NascondiGliAltri();

 private:
  void MostraChiSta();

  platform::Board& filmato_;
  const RegoleBlocchi& regole_;
  const BlocchiUniti& blocchi_;
};

}  // namespace somme::inline blocchi
