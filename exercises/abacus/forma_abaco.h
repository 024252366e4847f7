#pragma once

#include <QLatin1String>
#include <array>

#include "exercises/core/forma_esercizio.h"
#include "platform/boards/board.h"

namespace somme {

class FormaAbaco;

// One of the four kinds of bead.
struct GenerePalline {
  // The clips of the movie have these names, each with the bead's number, 0 to 9, behind it.
  QLatin1String sulFerro;
  QLatin1String inAttesa;
  qint16 FormaAbaco::*inserite;  // how many are on the spike
  std::size_t colonna;           // in `PallineInAttesa`
  int daTasti;                   // up to how many keys put onto the spike
};

// The name of a clip out of its kind's.
[[nodiscard]] inline QString NomeClip(QLatin1String clip, int numero) {
  return clip + QString::number(numero);
}

// The abacus exercises: a sum at the level that the menu chose, and an abacus of four spikes. A
// spike fills upward, and the bead that its counter names is the next free one; of each kind ten
// beads wait beside it. Who moves the beads, who carries and what is judged is left to the forms.
class FormaAbaco : public FormaEsercizio {
 public:
  FormaAbaco(Ambiente& ambiente, const platform::FormDesign& disegno);

  platform::Board ShockwaveFlash1{*this};
  // Never shown: it carries the place of the abacus through the resizing of the form.
  platform::Label Label1{*this};
  platform::Label EtOperazione{*this};

  static constexpr int kPalline = 10;  // of each kind
  static constexpr int kOpaca = 100;   // the alpha of a clip, in percent

  qint16 UnitaInserite = 0;
  qint16 DecineInserite = 0;
  qint16 CentinaiaInserite = 0;
  qint16 MigliaiaInserite = 0;
  // Whether waiting bead i of a kind stands beside its spike; a row for each number, in it the
  // kinds from thousands to units.
  std::array<std::array<bool, 4>, kPalline> PallineInAttesa{};

  // Empties the spikes and puts the waiting beads of the level's kinds back. A bead that a carry
  // has made transparent stays so, and can still be clicked. The thousands get nine beads on the
  // screen, although the table says ten: "ka0" never shows.
  void EliminaNumeroSW1();

 protected:
  void onLoad() override;

  // The activation up to the movie: place, record, abacus.
  void ApriAbaco();
  // Draws a case of the level, or none for a `TipoEsercizio` without one.
  void GeneraCaso();
  void ScriviDomanda();
  // What the bin does.
  void Svuota();

  // How many digits the answer can have at this level.
  virtual void ImpostaCifre(qint16 /*cifre*/) {}
  // Which arrows the level has.
  virtual void ImpostaFrecce() {}

  // Ten beads of a kind melt back beside their spike, then one of the next kind passes onto its
  // own: some six seconds, in which events go on. It comes to its end whatever happens meanwhile,
  // also to another case, on the state that it finds; only leaving the form ends it.
  void Cambia(const GenerePalline& da, const GenerePalline& a);
  // The waiting bead that the carry takes away, by its number; -1 when none is left.
  virtual int PallinaPerIlCambio(const GenerePalline& genere) const;

  // clip: the name, whole or without its number.
  void Mostra(const QString& clip, bool visibile);
  void Mostra(QLatin1String clip, int numero, bool visibile);
  // alfa: 0 transparent, `kOpaca` opaque.
  void Sfuma(QLatin1String clip, int numero, int alfa);
  // Gives assistive technology what stands on the abacus, for whoever looks there; and tells it,
  // where the pupil has changed it.
  void Descrivi();
  void Racconta();

 private:
  [[nodiscard]] QString SulFerro() const;
};

// By keys the thousands stop one lower: only nine of theirs are seen waiting.
inline constexpr GenerePalline kPallineMigliaia{QLatin1String("k"), QLatin1String("ka"),
                                                &FormaAbaco::MigliaiaInserite, 0, 9};
inline constexpr GenerePalline kPallineCentinaia{QLatin1String("h"), QLatin1String("ha"),
                                                 &FormaAbaco::CentinaiaInserite, 1,
                                                 FormaAbaco::kPalline};
inline constexpr GenerePalline kPallineDecine{QLatin1String("da"), QLatin1String("daa"),
                                              &FormaAbaco::DecineInserite, 2, FormaAbaco::kPalline};
inline constexpr GenerePalline kPallineUnita{QLatin1String("u"), QLatin1String("ua"),
                                             &FormaAbaco::UnitaInserite, 3, FormaAbaco::kPalline};
// By their column.
inline constexpr std::array<const GenerePalline*, 4> kGeneriPalline{
    &kPallineMigliaia, &kPallineCentinaia, &kPallineDecine, &kPallineUnita};

// The kind of which one bead is worth ten of this one; not for the thousands.
constexpr const GenerePalline& Superiore(const GenerePalline& genere) {
  return *kGeneriPalline[genere.colonna - 1];
}

}  // namespace somme
