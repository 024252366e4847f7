#pragma once

#include <functional>

#include "exercises/core/modo_input.h"
#include "exercises/core/tasti_cifre.h"
#include "input/collegamento_helpikeys.h"
#include "platform/forms/controls/menu_item.h"
#include "platform/forms/design.h"

namespace somme::inline nucleo {

class FormaEsercizio;

// When the Load connects: before or after the layout is started.
enum class Collega { PrimaDelResizer, DopoIlResizer };

// The touch surface, as a form holds it: the pupil lays a hand on a printed sheet, and HelpiKeys
// reports where. It opens the connection at the Load, asks for the touches as the first thing at
// each activation, and gives them back when the form is left. Mouse and keyboard go on working.
// Which keys lie where is said by the sheet in the form's row.
//
// The form has the socket and the menu item that asks for the sheet among its controls, and a row
// for the socket (`disegno::Connessione`).
class InputTocco final : public ModoInput {
 public:
  // prese: `ControlloConnessione` of the form. foglio: the menu item that asks for its sheet.
  // agisci: does what a key does on the form; called with `Tasto::Nessuno`, too.
  InputTocco(FormaEsercizio& forma, CollegamentoHelpiKeys::Prese& prese, platform::MenuItem& foglio,
             std::function<void(Tasto tasto)> agisci, Collega collega = Collega::DopoIlResizer);

  [[nodiscard]] bool HelpiKeysConnesso() const { return collegamento_.HelpiKeysConnesso(); }
  // The place of the sheet under a cell of the touch surface, both counted from 1; 0 for none.
  [[nodiscard]] int DecodificaSegnali(int colonna, int riga) const {
    return collegamento_.DecodificaSegnali(colonna, riga);
  }
  // Does what the key at a place of the sheet does on the form; nothing for any other number.
  // tasto: from 1, row by row.
  void InterpretaSegnale(int tasto) const { agisci_(foglio_.TastoDi(tasto).tasto); }

  void PrimaDelResizer() override;
  void DopoIlResizer() override;
  void AllAttivazione() override;
  void AllUscita() override;

 private:
  Collega collega_;
  const FoglioTasti& foglio_;
  std::function<void(Tasto tasto)> agisci_;
  CollegamentoHelpiKeys collegamento_;
};

// Does what a key of a sheet with digits does. siScrive: whether digits, bin and confirmation act
// now; avanti: whether the way on is open.
void AgisciSulleCifre(const TastiCifre& tasti, Tasto tasto, bool siScrive, bool avanti);

namespace disegno {

// The socket that stands on a touch form.
template <class F>
constexpr platform::Row Connessione() {
  return platform::item<&F::ControlloConnessione>(0, {});
}

// The menu item that asks for the sheet. voce: the form's member.
template <auto voce>
constexpr platform::Row VoceFoglio() {
  return platform::item<voce>({.caption = "Stampa Foglio Tastiera &HelpiKeys"});
}

}  // namespace disegno

}  // namespace somme::inline nucleo
