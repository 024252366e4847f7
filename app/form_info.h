#pragma once

#include "app/shared/forma.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/image.h"
#include "platform/forms/controls/label.h"

namespace somme::inline programma {

// The credits.
class FormInfo final : public Forma {
 public:
  explicit FormInfo(Ambiente& ambiente);

  platform::Label Label1{*this};
  platform::Label Label3{*this};
  platform::Label Label4{*this};
  platform::Button Command1{*this};
  platform::Image Image1{*this};
  platform::Image Image2{*this};

 protected:
  void onLoad() override;
  void onActivate() override;
};

}  // namespace somme::inline programma
