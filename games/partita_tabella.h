#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "games/casi_tabella.h"
#include "games/esito.h"
#include "platform/base/chance.h"

namespace somme::inline giochi {

// The game of the table of the numbers from 0 to 99: the pupil chooses the cell of a result. How
// much of the grid is numbered is the difficulty. A form drives it so:
//
//   PartitaTabella partita{stato().RisultatoTabella};
//
//   new case      if (auto caso = partita.NuovoCaso(tipo, sorte)) the question is written, and
//                 the cells look as Stato says
//   a cell        switch (partita.Scegli(cell)) Risolto, Sbagliato: told; the cells look as Stato
//                 says, and those that !SiPuoScegliere are disabled
//   the way on    while SiVaAvanti: partita.Avanti(), then a new case
//   difficulty    partita.Cambia(difficolta); the cells with HaNumero show their number
class PartitaTabella {
 public:
  enum class Difficolta : std::uint8_t { Facile, Media, Difficile };
  enum class Cella : std::uint8_t { Aperta, Sbagliata, Giusta };

  static constexpr int kCelle = kUltimaCella + 1;
  static constexpr int kPerRiga = 10;

  // risultato: where the number of the cell to find stands; it must outlive the game.
  explicit PartitaTabella(qint32& risultato) : risultato_(risultato) {}

  // Draws a case and opens all cells; a kind outside of 0 to 12 asks for the same cell again.
  std::optional<CasoTabella> NuovoCaso(int tipo, platform::Chance& sorte);
  // Draws a case and leaves the cells as they are.
  std::optional<CasoTabella> Chiedi(int tipo, platform::Chance& sorte);

  [[nodiscard]] Cella Stato(int cella) const { return celle_[static_cast<std::size_t>(cella)]; }
  // A cell that was wrong cannot be chosen again in the same case, and none can in a solved one.
  [[nodiscard]] bool SiPuoScegliere(int cella) const {
    return !risolto_ && Stato(cella) == Cella::Aperta;
  }
  // cella: 0 to 99.
  Esito Scegli(int cella);

  // Whether the way to the next case is open: from the start, so that the first case can be
  // skipped, then from a right answer until it is taken. A case that comes without it being taken
  // can be skipped, too. Kept: see docs/oddities.md.
  [[nodiscard]] bool SiVaAvanti() const { return avanti_; }
  // The way on is taken, and closes.
  void Avanti() { avanti_ = false; }

  // The case stays, and so do the cells.
  void Cambia(Difficolta difficolta) { difficolta_ = difficolta; }
  [[nodiscard]] Difficolta difficolta() const { return difficolta_; }
  // Whether a cell shows its number: all do, those of the first row and the first column, or none.
  [[nodiscard]] bool HaNumero(int cella) const;

 private:
  qint32& risultato_;
  std::array<Cella, kCelle> celle_{};
  bool risolto_ = false;
  bool avanti_ = true;
  Difficolta difficolta_ = Difficolta::Media;
};

}  // namespace somme::inline giochi
