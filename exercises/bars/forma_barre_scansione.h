#pragma once

#include "exercises/bars/forma_barre.h"
#include "exercises/core/input_scansione.h"
#include "exercises/core/scansione.h"

namespace somme::inline barre {

// What two bars forms that are worked by scanning differ in.
struct VarianteBarreScansione {
  VarianteBarre pagina;
  // Each case writes all three terms of the sum, the one that is asked for under the box, and the
  // first in this colour; without one the term that is asked for is empty. Kept: see
  // docs/oddities.md.
  std::optional<platform::Rgb> primoTermine;
  // Which comes back first when the print panel closes: the page or its keyboard.
  enum class Chiusura { PaginaPoiTastiera, TastieraPoiPagina } chiusura;
};

// The bars forms that are worked by scanning: the keyboard of digits fills a box that lies over the
// empty term of the written sum, helps, confirms, and leads on after a right answer. Closing the
// print panel wakes the keyboard and drops the open case.
class FormaBarreScansione final : public FormaBarre {
 public:
  FormaBarreScansione(Ambiente& ambiente, std::string_view nome,
                      const VarianteBarreScansione& variante);

  platform::TextBox TestoInput{*this};  // only the program writes in it
  TastieraNumericaScansione TastieraNumericaScansione1{*this};
  platform::Label LabelDimensioneTastiera{*this};  // hidden: the keyboard's place

  // Judges what stands in the box.
  void Conferma();
  void MostraAiuto() override;

 protected:
  void IniziaCasi() override;
  void NuovoCaso() override;
  // In a colour of its own the first term gives it to the box from the second case on.
  void Chiedi(const DomandaBarre& domanda) override { CopriTermine(TestoInput, domanda); }
  void ChiudiPannelloStampa() override;

 private:
  void RispostaGiusta();

  const VarianteBarreScansione& variante_;
  InputScansione scansione_{*this, TastieraNumericaScansione1,
                            CifreScanditeIn(TestoInput, {.conferma = [this] { Conferma(); },
                                                         .avanti = [this] { NuovoCaso(); },
                                                         .aiuto = [this] { MostraAiuto(); }})};
};

extern const VarianteBarreScansione kBarreScansione10;
extern const VarianteBarreScansione kBarreScansione20;

}  // namespace somme::inline barre
