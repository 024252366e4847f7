#pragma once

#include "app/shared/forma.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/image.h"
#include "platform/forms/controls/label.h"

namespace somme::inline programma {

// The splash form. Every other form takes its icon from it, for which it may be loaded again
// without being shown.
class FormAvvio final : public Forma {
 public:
  explicit FormAvvio(Ambiente& ambiente);

  platform::Label Label1{*this};
  platform::ControlArray<platform::Label> Label2{*this};
  platform::Image Image1{*this};
  platform::Image Image2{*this};
  platform::Button BottoneAvvio{*this};

 protected:
  void onLoad() override;
  void onActivate() override;
};

}  // namespace somme::inline programma
