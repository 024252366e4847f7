#pragma once

#include "exercises/core/forma_esercizio.h"
#include "games/partita_abaco.h"
#include "platform/boards/board.h"

namespace somme::inline abaco {

// The places as they stand on the abacus, from the left.
inline constexpr std::array kFerri{Posto::Migliaia, Posto::Centinaia, Posto::Decine, Posto::Unita};

// The abacus exercises: a sum at the level that the menu chose, and an abacus of four spikes. The
// rules are the game's; who moves the beads, and where the sum is given, is left to the forms.
class FormaAbaco : public FormaEsercizio {
 public:
  FormaAbaco(Ambiente& ambiente, const platform::FormDesign& disegno, PartitaAbaco::Cambi cambi);

  platform::Board ShockwaveFlash1{*this};
  // Never shown: it carries the place of the abacus through the resizing of the form.
  platform::Label Label1{*this};
  platform::Label EtOperazione{*this};

  [[nodiscard]] const PartitaAbaco& partita() const { return partita_; }

  // Empties the spikes and puts the waiting beads of the level's kinds back. A bead that a carry
  // has made transparent stays so, and can still be clicked.
  void EliminaNumeroSW1();

 protected:
  static constexpr int kOpaca = 100;  // the alpha of a clip, in percent

  void onLoad() override;
  void IniziaAttivazione() override;
  // Between the abacus, with a yield, and the first case of an activation.
  virtual void MostraRisposta() {}

  // The game, to be played.
  [[nodiscard]] PartitaAbaco& gioco() { return partita_; }
  // Draws a case of the level, or none for a `TipoEsercizio` without one.
  void GeneraCaso() { partita_.NuovoCaso(stato().TipoEsercizio, ambiente().servizi.sorte); }
  void ScriviDomanda();
  // What the bin does.
  void Svuota();

  // How many digits the answer can have at this level.
  virtual void ImpostaCifre(qint16 /*cifre*/) {}
  // Which arrows the level has.
  virtual void ImpostaFrecce() {}

  // One more bead, put by a key; false once there are as many as keys can put.
  bool InserisciDaTasto(Posto posto);
  // Shows a carry that the game has begun. Ten beads melt back beside their spike, then one of the
  // next place passes onto its own: some six seconds, in which events go on. It comes to its end
  // whatever happens meanwhile, also to another case, on the state that it finds; only leaving the
  // form ends it. The place from which a further carry follows by itself, if one does.
  std::optional<Posto> Cambia(Posto da);

  // Shows what became of an answer.
  void Giudica(Esito esito);
  virtual void RispostaGiusta() = 0;
  virtual void RispostaSbagliata() { SegnaSbagliato(); }
  // The operation with its sum, for the record.
  void AggiungiSomma(const QString& somma);

  void Mostra(const QString& clip, bool visibile);
  // alfa: 0 transparent, `kOpaca` opaque.
  void Sfuma(const QString& clip, int alfa);
  // Tells assistive technology what stands on the abacus, where the pupil has changed it.
  void Racconta();

 private:
  void ApriAbaco();
  // Gives the same for whoever looks there.
  void Descrivi();
  [[nodiscard]] QString SulFerro() const;

  PartitaAbaco partita_;
};

}  // namespace somme::inline abaco
