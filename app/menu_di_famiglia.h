#pragma once

#include <functional>

#include "app/shared/forma.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/button_group.h"
#include "platform/forms/controls/caption_size.h"
#include "platform/forms/controls/label.h"

namespace somme::inline programma {

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
  // fits the pupil's input mode is shown.
  void Apre(platform::Button& pulsante, Famiglia famiglia, std::function<void()> scelta);
  // The same on a menu whose exercises have a title: the group's words and the caption of a button
  // go to its end. chiave: of the group's words, in section "Strings".
  void ApreTitolato(platform::Button& pulsante, Famiglia famiglia, qint16 tipo,
                    std::string_view chiave, const platform::Button& voce);
  void TornaAlMenu();

 private:
  // The band that stands over the column of a level; null where the menu has none.
  [[nodiscard]] const platform::Label* FasciaDi(const platform::Button& voce) const;

  platform::CaptionSize scritte_;  // of the buttons that open exercises
  platform::ButtonGroup livelli_;
};

}  // namespace somme::inline programma
