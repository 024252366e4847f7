#pragma once

#include <optional>

#include "exercises/core/disegno_comune.h"
#include "exercises/core/forma_esercizio.h"

namespace somme {

// What is asked of the pupil: one of the three numbers of the sum.
struct DomandaBarre {
  int termine;  // its index in `Label4`
  QString StringheCondivise::*consegna;
  platform::Rgb colore;  // of the answer
};

// How far an exercise goes.
struct PortataBarre {
  int aiuti;                           // help squares that each row can have
  QString StringheCondivise::*titolo;  // in the heading of the record
};
inline constexpr PortataBarre kFinoA10{10, &StringheCondivise::TitoloFinoAl10};
inline constexpr PortataBarre kFinoA20{20, &StringheCondivise::TitoloFinoAl20};

// The bars exercises: the two addends as bars end to end, the total under them, one number of the
// three to be found. How the answer comes in is left to the forms.
//
// The first addend's bar is called "gialla" in every text and is cyan; the second addend is a
// lighter green on its bar than in the written sum. Both are settled.
class FormaBarre : public FormaEsercizio {
 public:
  FormaBarre(Ambiente& ambiente, const platform::FormDesign& disegno, const PortataBarre& portata);

  platform::PictureBox Picture1{*this};
  platform::Label n1{*this};
  platform::Label n2{*this};
  platform::Label n3{*this};
  platform::ControlArray<platform::Label> aiuto1{*this};
  platform::ControlArray<platform::Label> aiuto2{*this};
  platform::ControlArray<platform::Label> aiuto3{*this};
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

 protected:
  // Makes the form ready for the answer to a new question, before the written sum changes: it may
  // read place and colour of the terms, not their captions.
  virtual void Chiedi(const DomandaBarre& domanda) = 0;

  // The steps that the forms' own NuovoCaso, Load and Activate are made of.
  void IniziaEsercizio();  // the counters, and the first kind of exercise
  void NascondiAiuti();
  void GeneraPerTipo();  // the question that the kind of exercise asks for
  // The unit and the origin, from `n1` as it stands now; the other bars take its height.
  void LeggiMisure();
  void MisuraAiuti();
  void ScriviTitolo();
  void CreaAiuti();
  // The written numbers in the colours of the answers; primo: another one for the first.
  void ColoraTermini(std::optional<platform::Rgb> primo = {});

  // The mark at the end of the tenth unit, on the forms that have one: puts it there, hides it.
  virtual void PosaSegno() {}
  virtual void NascondiSegno() {}
  virtual void MostraAiuto();
  // The numbers come back on the bars, so that the "?" goes.
  void MostraNumeri();
  void AggiungiAllElenco();
  void ScriviSomma();

  [[nodiscard]] qint16 risultatoAtteso() const { return RisultatoAtteso; }
  // So many units from the left end of the bars, in twips. Throws RunTimeError(Overflow) beyond 16
  // bits.
  [[nodiscard]] qint16 FineDi(int unita) const;

 private:
  // Tells assistive technology the help squares of the bar that is asked for.
  void DiciQuadretti();
  void ScegliTipo(qint16 tipo);
  void EstraiCaso();
  void MostraCaso(const DomandaBarre& domanda);
  [[nodiscard]] qint16 Lungo(int unita) const;
  void MettiQuadretti(platform::ControlArray<platform::Label>& quadretti, int quanti, int sinistra,
                      int alto);

  const PortataBarre& portata_;
  qint16 RisultatoAtteso = 0;                      // the number that the pupil must give
  const platform::Label* barraChiesta_ = nullptr;  // its bar; none before the first case
  qint16 OrigineY = 0;  // top of the first row of bars, twips inside `Picture1`
  qint16 OrigineX = 0;  // left end of the bars
  qint16 Unita = 0;     // length of one unit, height of a bar, side of a square
};

}  // namespace somme
