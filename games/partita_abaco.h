#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "cases/caso.h"
#include "games/esito.h"
#include "games/livelli_abaco.h"
#include "games/quantita.h"
#include "platform/base/chance.h"

namespace somme::inline giochi {

// The game of the abacus: a sum, and four spikes with beads. A spike fills upward, and the bead
// that its counter names, from 0, is the next free one; of each place ten beads wait beside it. A
// form drives it so:
//
//   PartitaAbaco partita{stato(), PartitaAbaco::Cambi::Frecce};
//
//   new case      partita.Svuota(), and the form shows the empty spikes and the beads that wait at
//                 the level (livelli_abaco.h); then partita.NuovoCaso(tipo, sorte). Events may run
//                 in between
//   a bead        clicked: if (auto n = partita.Inserisci(posto, waiting)) bead n appears on the
//                 spike, and the one that was clicked goes; by a key: if (auto n =
//                 partita.InserisciDaTasto(posto)) bead n appears, and waiting bead n goes
//   on the spike  if (auto tolta = partita.Rimuovi(posto)) bead tolta->dalFerro goes, and
//                 tolta->inAttesa waits again, seen where SiVedeInAttesa
//   the arrows    after each of these and each carry they are enabled as FrecciaAttiva says
//   a carry       if (partita.IniziaCambio(da)) the ten melt back beside their spike; then auto
//                 passa = partita.Passa(da), and the bead passa.presa passes onto the next spike as
//                 passa.nuova; then auto altro = partita.FinisciCambio(da), and carry *altro
//                 follows
//   answer        partita.Rispondi(number) where it is written, partita.Conferma() where the abacus
//                 itself is judged. Risolto, Sbagliato: told
//
// Where beads carry by themselves: after InserisciDaTasto, if (partita.CambiaDaSe(posto)) the carry
// of that place begins.
class PartitaAbaco {
 public:
  enum class Fase : std::uint8_t { NessunCaso, Domanda, Risolto };
  // Who carries: the pupil by an arrow, the tenth bead by itself, the pupil by a key.
  enum class Cambi : std::uint8_t { Frecce, DaSe, Tasti };

  static constexpr int kPalline = 10;  // of each place
  // By keys the thousands stop one lower: only nine of theirs are seen waiting.
  static constexpr int kMigliaiaDaTasti = 9;

  // caso: where the case stands; it must outlive the game.
  PartitaAbaco(Caso& caso, Cambi cambi);

  // Takes all beads off the spikes and puts all ten back beside each. An arrow that is enabled
  // stays so.
  void Svuota();
  // Draws a case of the level; a `tipo` without a level leaves the case as it was.
  void NuovoCaso(int tipo, platform::Chance& sorte);

  [[nodiscard]] Fase fase() const { return fase_; }
  // Whether the abacus can be judged, whether the way on is open.
  [[nodiscard]] bool SiConferma() const { return fase_ != Fase::Risolto; }
  [[nodiscard]] bool SiVaAvanti() const { return fase_ != Fase::Domanda; }
  // How many beads are on each spike, 0 to 11: one more than ten comes by a carry alone.
  [[nodiscard]] const Quantita& Inserite() const { return inserite_; }
  // Whether a bead stands beside its spike; numero: 0 to 9.
  [[nodiscard]] bool InAttesa(Posto posto, int numero) const;
  // Whether it can be seen there: the thousands' first never is, though it counts. Kept: see
  // docs/oddities.md.
  [[nodiscard]] static bool SiVedeInAttesa(Posto posto, int numero) {
    return posto != Posto::Migliaia || numero != 0;
  }

  // A waiting bead goes onto its spike: its number there; none once no bead can be waiting.
  // inAttesa: which one was taken, 0 to 9.
  std::optional<int> Inserisci(Posto posto, int inAttesa);
  // The topmost bead goes back, where the first place beside the spike is free; none from an empty
  // spike.
  struct Tolta {
    int dalFerro;
    std::optional<int> inAttesa;  // none where no place is free
  };
  std::optional<Tolta> Rimuovi(Posto posto);
  // One more bead, the waiting one with the same number: that number, or none where the spike is
  // full for keys.
  std::optional<int> InserisciDaTasto(Posto posto);
  // Whether a sum of this size has beads of the place: by touch thousands and hundreds that the
  // case has no use for are refused. Tens and units always have a use.
  [[nodiscard]] bool HaUso(Posto posto) const;

  // Whether the arrow that carries from the place is enabled: from the tenth bead on the spike
  // until one is taken away or it is used. The thousands have none.
  [[nodiscard]] bool FrecciaAttiva(Posto da) const;
  // Whether beads carry by themselves and the place is full; never the thousands.
  [[nodiscard]] bool CambiaDaSe(Posto posto) const;

  // A carry from a place, never the thousands, in three steps with time between them, in which
  // anything may happen: each step works on the state that it finds.
  //
  // Begins it: false where the spike has not ten, as far as the pupil carries, or the next is full.
  bool IniziaCambio(Posto da);
  // The ten are back; which bead of the next place passes.
  struct Passaggio {
    int nuova;                 // its number on the spike
    std::optional<int> presa;  // that which waited; none where none did
  };
  Passaggio Passa(Posto da);
  // It is done: the place from which a further carry follows by itself, if one does.
  std::optional<Posto> FinisciCambio(Posto da);
  // Whether keys are dropped: while a carry by a key goes on, and after one that found the next
  // spike full until the next case. Kept: see docs/oddities.md.
  [[nodiscard]] bool CambioInCorso() const { return cambioInCorso_; }

  // Judges a written sum; the beads play no part. A solved case stays solved.
  Esito Rispondi(double numero);
  // Judges the value of the beads, also with ten on a spike; nothing in a solved case.
  Esito Conferma();
  // The digits of the sum that are shown once it is right.
  [[nodiscard]] Cifre CifreDelTotale() const { return CifreDi(caso_.Totale, Posto::Migliaia); }

 private:
  [[nodiscard]] std::optional<int> PallinaCheAspetta(Posto posto) const;
  void AttivaFreccia(Posto da, bool attiva);
  [[nodiscard]] bool& Attesa(Posto posto, int numero);

  Caso& caso_;
  Cambi cambi_;
  Fase fase_ = Fase::NessunCaso;
  Quantita inserite_;
  std::array<std::array<bool, kPalline>, kPosti> inAttesa_{};
  std::array<bool, kPosti> frecceAttive_{};  // the thousands' is never asked for
  bool cambioInCorso_ = false;
};

}  // namespace somme::inline giochi
