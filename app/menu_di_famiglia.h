#pragma once

#include <functional>

#include "app/shared/forma.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/button_group.h"
#include "platform/forms/controls/caption_size.h"
#include "platform/forms/controls/label.h"

namespace somme::inline programma {

// A level of a menu whose exercises have a title.
struct VoceTitolata {
  Famiglia famiglia;
  qint16 tipo;                     // its number in the family
  std::string_view gruppo;         // the key of its group's words, in section "Strings"
  const platform::Button& parole;  // whose caption follows them
};

// What the five family menus share: a heading, the gradient, counters that start again, the way
// back to the main menu, and buttons that each open the exercise of a level. Which levels there
// are, and what they write into the shared state, is each menu's own.
class MenuDiFamiglia : public Forma {
 public:
  MenuDiFamiglia(Ambiente& ambiente, const platform::FormDesign& disegno);

  platform::Label Label1{*this};

 protected:
  void onLoad() override;
  void onActivate() override;

  // Makes a button open an exercise of a family: scelta writes the level down, then the form that
  // fits the pupil's input mode is shown. fascia: the band that it stands under; null where the
  // menu has none.
  void Apre(platform::Button& pulsante, Famiglia famiglia, std::function<void()> scelta,
            const platform::Label* fascia = nullptr);
  // The same on a menu whose exercises have a title, to the end of which the level adds its words.
  void ApreTitolato(platform::Button& pulsante, const platform::Label& fascia,
                    const VoceTitolata& voce);
  void TornaAlMenu();

 private:
  platform::CaptionSize scritte_;  // of the buttons that open exercises
  platform::ButtonGroup livelli_;
};

}  // namespace somme::inline programma
