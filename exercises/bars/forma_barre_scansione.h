#pragma once

#include "exercises/bars/forma_barre.h"
#include "exercises/core/con_scansione.h"

namespace somme {

// The bars forms that are worked by scanning: the keyboard of digits fills a box that lies over the
// empty term of the written sum, helps, confirms, and leads on after a right answer.
class FormaBarreScansione : public ConScansione<FormaBarre> {
 public:
  FormaBarreScansione(Ambiente& ambiente, const platform::FormDesign& disegno,
                      const PortataBarre& portata);

  platform::TextBox TestoInput{*this};             // only the program writes in it
  platform::Label LabelDimensioneTastiera{*this};  // hidden: the keyboard's place

  // Judges what stands in the box; an empty one is 0.
  void Conferma() override;

 protected:
  void onLoad() override;
  void NuovoCaso() override;
  void Chiedi(const DomandaBarre& domanda) override;
  void ScriviCifra(int cifra) override { AccodaCifra(TestoInput, cifra); }
  void SvuotaInput() override { TestoInput.setText({}); }
  [[nodiscard]] QString Scritto() const override { return TestoInput.text(); }
  void ChiediAiuto() override { MostraAiuto(); }

  // The colour of the number in the box.
  [[nodiscard]] virtual platform::Rgb ColoreRisposta(const DomandaBarre& domanda) const {
    return domanda.colore;
  }
};

}  // namespace somme
