#pragma once

#include <functional>

#include "exercises/core/modo_input.h"
#include "exercises/core/tasti_cifre.h"
#include "input/collegamento_helpikeys.h"
#include "platform/forms/controls/menu_item.h"
#include "platform/forms/design.h"

namespace somme {

class FormaEsercizio;

// What the forms for the touch keyboard differ in, apart from what their keys do.
struct TastieraHelpiKeys {
  const MappaTasti& mappa;
  // When the Load connects: before or after the layout is started.
  enum class Collega { PrimaDelResizer, DopoIlResizer } collega = Collega::DopoIlResizer;
};

// The touch surface, as a form holds it: the pupil lays a hand on a printed sheet, and HelpiKeys
// reports where. It opens the connection at the Load, asks for the touches as the first thing at
// each activation, and gives them back when the form is left. Mouse and keyboard go on working.
//
// The form has the socket and the menu item that asks for the sheet among its controls, and a row
// for the socket (`disegno::Connessione`).
class InputTocco final : public ModoInput {
 public:
  // prese: `ControlloConnessione` of the form. foglio: the menu item that asks for its sheet.
  // interpreta: does what a key of the sheet does on the form; keys count from 1, row by row.
  InputTocco(FormaEsercizio& forma, const TastieraHelpiKeys& tastiera,
             CollegamentoHelpiKeys::Prese& prese, platform::MenuItem& foglio,
             std::function<void(int tasto)> interpreta);

  [[nodiscard]] bool HelpiKeysConnesso() const { return collegamento_.HelpiKeysConnesso(); }
  // The key of the sheet under a cell of the touch surface, both counted from 1; 0 for none.
  [[nodiscard]] int DecodificaSegnali(int colonna, int riga) const {
    return collegamento_.DecodificaSegnali(colonna, riga);
  }

  void PrimaDelResizer() override;
  void DopoIlResizer() override;
  void AllAttivazione() override;
  void AllUscita() override;

 private:
  TastieraHelpiKeys::Collega collega_;
  CollegamentoHelpiKeys collegamento_;
};

// Does what a key of the sheet with digits does. tasto: 1 to 16, or 0 for a touch beside the keys.
// siScrive: whether digits, bin and confirmation act now; avanti: whether the way on is open.
void InterpretaCifre(const TastiCifre& tasti, int tasto, bool siScrive, bool avanti);

namespace disegno {

// The socket that stands on a touch form.
template <class F>
constexpr platform::Row Connessione() {
  return platform::item<&F::ControlloConnessione>(0, {});
}

}  // namespace disegno

}  // namespace somme
