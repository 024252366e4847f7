#pragma once

#include "exercises/core/forma_esercizio.h"
#include "games/partita_tabella.h"
#include "platform/forms/controls/button_group.h"

namespace somme::inline tabella {

// Sums on the table of the numbers from 0 to 99: the pupil clicks the cell of the result. The
// operands of a case live only in the words of the question; `RisultatoTabella` is the cell to
// find.
class FormTabella final : public FormaEsercizio {
 public:
  FormTabella(Ambiente& ambiente, std::string_view nome);

  platform::ControlArray<platform::Button> Numero{*this};
  platform::Label EtichettaNumero{*this};
  platform::Label Label3{*this};
  platform::Button PulsanteAvanti{*this};
  platform::MenuItem mnuTabella{*this};
  platform::MenuItem mnuFacile{*this};
  platform::MenuItem mnuMedia{*this};
  platform::MenuItem mnudifficile{*this};

  // Writes the captions of the grid for the difficulty that is checked.
  void RiempiTabella();

  // Each draws a case of its kind and shows it. The kinds with a minus sign and the mixed ones are
  // offered by no menu.
  void Es_Caso0() { Es_Caso(0); }
  void Es_Caso1() { Es_Caso(1); }
  void Es_Caso2() { Es_Caso(2); }
  void Es_Caso3() { Es_Caso(3); }
  void Es_Caso4() { Es_Caso(4); }
  void Es_Caso5() { Es_Caso(5); }
  void Es_Caso6() { Es_Caso(6); }
  void Es_Caso7() { Es_Caso(7); }
  void Es_Caso8() { Es_Caso(8); }
  void Es_Caso9() { Es_Caso(9); }
  void Es_Caso10() { Es_Caso(10); }
  void Es_Caso11() { Es_Caso(11); }
  void Es_Caso12() { Es_Caso(12); }

 protected:
  void onLoad() override;
  void IniziaAttivazione() override;
  void ChiudiPannelloStampa() override;

 private:
  // A kind outside of 0 to 12 draws nothing.
  void Es_Caso(int tipo);
  void MostraCaso(const std::optional<CasoTabella>& caso);
  void NuovoCaso() override;
  // The way on, as the game has it.
  void MostraAvanti() { PulsanteAvanti.setEnabled(partita_.SiVaAvanti()); }
  void Rispondi(int numero);
  // What assistive technology calls a cell without a number.
  [[nodiscard]] QString NomeDiVuota(int cella) const;
  void RispostaGiusta(int numero);
  void ScegliDifficolta(const platform::MenuItem& scelta, PartitaTabella::Difficolta difficolta);

  PartitaTabella partita_{stato().RisultatoTabella};
  platform::ButtonGroup celle_;
};

}  // namespace somme::inline tabella
