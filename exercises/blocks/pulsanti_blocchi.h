#pragma once

#include "exercises/blocks/forma_blocchi.h"
#include "platform/forms/controls/button_group.h"
#include "platform/forms/controls/picture_box.h"

namespace somme::inline blocchi {

// The buttons that put blocks, in a panel that moves along under the board in use. A form's design
// places them (see disegno_pulsanti.h).
//
// Each asks first whether it is visible, and means its own flag: the buttons of a hidden
// `PicturePulsanti` still are. What keeps them from acting there is the game.
class PulsantiBlocchi {
 public:
  explicit PulsantiBlocchi(FormaBlocchi& forma);

  platform::PictureBox PicturePulsanti;
  platform::OptionalControl<platform::Button> PulsanteH;  // where there are flats
  platform::Button PulsanteDa;
  platform::Button PulsanteU;
  platform::Button PulsanteCestino;
  platform::Button PulsanteConferma;

  // At the form's Load, when the buttons are there.
  void AlCaricamento();
  // Gives the focus to the first button where nothing that can be pressed has it.
  void PrendiIlFuoco();

  // What the buttons do. Nothing for a kind of block that has none.
  void ClicBlocco(Posto specie);
  void ClicCestino();
  void ClicConferma();

 private:
  [[nodiscard]] platform::Button* PulsanteDi(Posto specie);

  FormaBlocchi& forma_;
  platform::ButtonGroup comandi_;
};

}  // namespace somme::inline blocchi
