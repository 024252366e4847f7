#pragma once

#include <optional>

#include "exercises/core/disegno_comune.h"
#include "exercises/core/forma_esercizio.h"
#include "games/partita_barre.h"
#include "platform/forms/controls/line.h"
#include "platform/forms/controls/text_box.h"
#include "platform/forms/optional_control.h"

namespace somme::inline barre {

// What two forms of one class differ in.
struct VarianteBarre {
  QString StringheCondivise::*titolo;  // of the range, in the heading of the record
  double larghezza;                    // of the client area, in twips
  double altezza;
  std::span<const std::span<const platform::Row>> tavole;
};

// How the pupil is asked for one of the three numbers of the sum.
struct DomandaBarre {
  Termine termine;
  QString StringheCondivise::*consegna;
  platform::Rgb colore;  // of the answer
};

// The bars exercises: the two addends as bars end to end, the total under them, one number of the
// three to be found. How the answer comes in is left to the forms.
//
// The first addend's bar is called "gialla" in every text and is cyan; the second addend is a
// lighter green on its bar than in the written sum. Both are kept: see docs/oddities.md.
class FormaBarre : public FormaEsercizio {
 public:
  // nome: the form's name in the table of forms; variante: must outlive the form; vuoto: what an
  // empty box is to the game.
  FormaBarre(Ambiente& ambiente, std::string_view nome, const VarianteBarre& variante,
             PartitaBarre::Vuoto vuoto = PartitaBarre::Vuoto::NonRisponde);

  platform::PictureBox Picture1{*this};
  platform::Label n1{*this};
  platform::Label n2{*this};
  platform::Label n3{*this};
  platform::ControlArray<platform::Label> aiuto1{*this};
  platform::ControlArray<platform::Label> aiuto2{*this};
  platform::ControlArray<platform::Label> aiuto3{*this};
  platform::OptionalControl<platform::Line> Line1{*this};  // up to 20: where ten ends
  platform::ControlArray<platform::Label> Label4{*this};
  platform::Label Label3{*this};
  platform::MenuItem mnuEsercizio{*this};
  platform::MenuItem mnuRossa{*this};
  platform::MenuItem mnuGiallaVerde{*this};
  platform::MenuItem mnuTutteBarre{*this};

  // Draws a case and asks for the total.
  void GeneraCaso1();
  // Draws a case and asks for one of the addends.
  void GeneraCaso2();

  // The steps that forms, and the parts that they are made of, put in their own order.
  using FormaEsercizio::NuovoCaso;
  using FormaEsercizio::SegnaGiusto;
  using FormaEsercizio::SegnaSbagliato;
  [[nodiscard]] PartitaBarre& partita() { return partita_; }
  void NascondiAiuti();
  void NascondiSegno();
  void GeneraPerTipo();  // the question that the kind of exercise asks for
  virtual void MostraAiuto();
  // The numbers come back on the bars, so that the "?" goes.
  void MostraNumeri();
  void AggiungiAllElenco();
  void ScriviSomma();
  // Lays the box for the answer over the empty term of the written sum, in its colour.
  void CopriTermine(platform::TextBox& casella, const DomandaBarre& domanda);

 protected:
  void onLoad() override;
  void IniziaAttivazione() override;
  // The end of an activation, with the first case of it.
  virtual void IniziaCasi() { NuovoCaso(); }
  // Makes the form ready for the answer to a new question, before the written sum changes: it may
  // read place and colour of the terms, not their captions.
  virtual void Chiedi(const DomandaBarre& domanda) = 0;

  // The written numbers in the colours of the answers; primo: another one for the first.
  void ColoraTermini(std::optional<platform::Rgb> primo = {});

 private:
  void ScegliTipo(TipoBarre tipo);
  // The unit and the origin, from `n1` as it stands now; the other bars take its height.
  void LeggiMisure();
  void PosaSegno();
  void MisuraAiuti();
  void ScriviTitolo();
  // As many help squares in each row as the range has; those that are there stay as they are.
  void CreaAiuti();
  void MostraCaso();
  void MettiBarra(Termine termine, int sinistra, int alto);
  // What a bar of an open case says: its number, or "?" where it is asked for.
  [[nodiscard]] QString DettoDi(Termine termine) const;
  void MettiQuadretti(platform::ControlArray<platform::Label>& quadretti, int quanti, int sinistra,
                      int alto);
  // Tells assistive technology the help squares of the bar that is asked for.
  void DiciQuadretti();
  [[nodiscard]] platform::Label& Barra(Termine termine);
  [[nodiscard]] platform::Label& Scritto(Termine termine);
  // The length of `unita` units, and where they end when counted from the left end of the bars, in
  // twips. Both throw RunTimeError(Overflow) beyond 16 bits.
  [[nodiscard]] qint16 Lungo(int unita) const;
  [[nodiscard]] qint16 FineDi(int unita) const;

  const VarianteBarre& variante_;
  PartitaBarre partita_;
  qint16 OrigineY = 0;  // top of the first row of bars, twips inside `Picture1`
  qint16 OrigineX = 0;  // left end of the bars
  qint16 Unita = 0;     // length of one unit, height of a bar, side of a square
};

}  // namespace somme::inline barre
