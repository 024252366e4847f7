#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "cases/caso.h"
#include "games/esito.h"
#include "platform/base/chance.h"

namespace somme::inline giochi {

// The kinds of exercise on the bars, by `TipoEsercizio`.
enum TipoBarre : qint16 { kTrovaRossa = 1, kTrovaGiallaVerde = 2, kTrovaUna = 3 };

// The numbers of a sum, in the order in which they are written. Each is a bar.
enum class Termine : std::uint8_t { Primo, Secondo, Totale };

// The game of the bars: one of the three numbers of a sum is to be found. A form drives it so:
//
//   PartitaBarre partita{stato()};  // by scanning: PartitaBarre::Vuoto::Zero
//
//   new case      if (partita.NuovoCaso(tipo, limite, sorte)) the three bars are drawn, the one of
//                 Chiesto() with "?", and its term is left empty
//   a number      on buttons partita.Scegli(number), and those that !SiPuoScegliere(number) are
//                 disabled; written partita.Rispondi(number). Risolto, Sbagliato: told
//   the way on    by touch its key acts while SiVaAvanti()
//   help          squares for Numero(termine) of each row; those of Chiesto() are told, if there is
//                 one; up to 20 a mark where kDecina ends. It costs nothing at any time
class PartitaBarre {
 public:
  enum class Fase : std::uint8_t { NessunCaso, Domanda, Risolto };
  // What an empty box is: no answer or, by scanning, a 0.
  enum class Vuoto : std::uint8_t { NonRisponde, Zero };

  // How far the sums of the two exercises go.
  static constexpr int kFinoA10 = 10;
  static constexpr int kFinoA20 = 20;
  // Where the help of the larger exercise has its mark.
  static constexpr int kDecina = 10;
  [[nodiscard]] static constexpr bool HaIlSegno(int limite) { return limite == kFinoA20; }

  // caso: where the case stands; it must outlive the game.
  explicit PartitaBarre(Caso& caso, Vuoto vuoto = Vuoto::NonRisponde)
      : caso_(caso), vuoto_(vuoto) {}

  // Draws a case with a sum of 1 to `limite` and asks for what the kind of exercise says. False for
  // another kind, which asks for the same number of the same case again.
  bool NuovoCaso(int tipo, int limite, platform::Chance& sorte);
  // The same for the total, and for one of the addends.
  void ChiediTotale(int limite, platform::Chance& sorte);
  void ChiediAddendo(int limite, platform::Chance& sorte);

  [[nodiscard]] Fase fase() const { return fase_; }
  // Whether keys may write and confirm; so before the first case, too.
  [[nodiscard]] bool SiRisponde() const { return fase_ != Fase::Risolto; }
  // Whether the way to the next case is open; so before the first case, too.
  [[nodiscard]] bool SiVaAvanti() const { return fase_ != Fase::Domanda; }
  // Which number is asked for; none before the first case.
  [[nodiscard]] std::optional<Termine> Chiesto() const { return chiesto_; }
  // The number that the pupil must give; 0 before the first case.
  [[nodiscard]] qint16 Atteso() const { return atteso_; }
  // A number of the case.
  [[nodiscard]] qint16 Numero(Termine termine) const;

  // Judges a number that was written; none where the box is empty. A solved case is judged again,
  // and counts again: see docs/oddities.md.
  Esito Rispondi(std::optional<double> numero);
  // Judges a number that was chosen among those from 0 to the limit: a wrong one cannot be chosen
  // again in the same case, and none can once the case is solved.
  Esito Scegli(int numero);
  [[nodiscard]] bool SiPuoScegliere(int numero) const;

 private:
  void Apri();
  void Chiedi(Termine termine, int limite, platform::Chance& sorte);

  Caso& caso_;
  Vuoto vuoto_;
  Fase fase_ = Fase::NessunCaso;
  std::optional<Termine> chiesto_;
  qint16 atteso_ = 0;
  std::vector<int> scelti_;  // in this case
};

}  // namespace somme::inline giochi
