#pragma once

#include <utility>

#include "exercises/core/chiedi_foglio.h"
#include "exercises/core/input_tocco.h"
#include "input/collegamento_helpikeys.h"
#include "platform/forms/controls/menu_item.h"

namespace somme {

// An exercise form, or a base of some, that is worked by touch: the pupil lays a hand on a printed
// sheet, and HelpiKeys reports where. It opens the connection at the Load, asks for the touches as
// the first thing at each activation, and gives them back when the form is left. Mouse and keyboard
// go on working as on `Base`.
//
// Which keys lie where is said by the sheet in the form's row. A form says what its keys do
// (`Agisci`), which menu item asks for its sheet (`OffriFoglio`, in its constructor), and has a row
// for the socket that stands on it (`disegno::Connessione`). Where its activation is another than
// that of `Base`, it overrides `DopoLaRichiesta`, never `onActivate`.
template <class Base>
class ConHelpiKeys : public Base {
 public:
  template <class... Argomenti>
  explicit ConHelpiKeys(Collega collega, Argomenti&&... argomenti)
      : Base(std::forward<Argomenti>(argomenti)...),
        collega_(collega),
        foglio_(FoglioDi(this->scheda().foglio)),
        collegamento_(this->ambiente(), ControlloConnessione, foglio_.tastiera,
                      [this](int tasto) { InterpretaSegnale(tasto); }) {
    this->mnuEsci.onClick([this] {
      collegamento_.Lascia();
      this->Esci();
    });
  }

  platform::ControlArray<platform::Socket> ControlloConnessione{*this};

  [[nodiscard]] bool HelpiKeysConnesso() const { return collegamento_.HelpiKeysConnesso(); }
  // The place of the sheet under a cell of the touch surface, both counted from 1; 0 for none.
  [[nodiscard]] int DecodificaSegnali(int colonna, int riga) const {
    return collegamento_.DecodificaSegnali(colonna, riga);
  }
  // Does what the key at a place of the sheet does on this form; nothing for any other number.
  // tasto: from 1, row by row.
  void InterpretaSegnale(int tasto) { Agisci(foglio_.TastoDi(tasto).tasto); }

 protected:
  // Does what a key does; nothing for `Tasto::Nessuno`.
  virtual void Agisci(Tasto tasto) = 0;
  // The menu item that asks for the keyboard sheet.
  void OffriFoglio(platform::MenuItem& voce) {
    voce.onClick([this] { ChiediFoglio(this->ambiente(), this->scheda().foglio); });
  }
  // What an activation does once the touches have been asked for.
  virtual void DopoLaRichiesta() { Base::onActivate(); }

  void AvviaResizer() final {
    const bool prima = collega_ == Collega::PrimaDelResizer;
    if (prima) collegamento_.Apri();
    Base::AvviaResizer();
    if (!prima) collegamento_.Apri();
  }
  void onActivate() final {
    collegamento_.Richiedi();
    DopoLaRichiesta();
  }

 private:
  Collega collega_;
  const FoglioTasti& foglio_;
  CollegamentoHelpiKeys collegamento_;
};

}  // namespace somme
