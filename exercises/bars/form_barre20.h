#pragma once

#include "exercises/bars/forma_barre_tastiera.h"
#include "platform/forms/controls/line.h"

namespace somme {

// Bars up to 20; the answer is typed, and the help marks where ten ends.
class FormBarre20 final : public FormaBarreTastiera {
 public:
  explicit FormBarre20(Ambiente& ambiente);

  platform::Line Line1{*this};

 protected:
  void onActivate() override;
  void NascondiSegno() override { Line1.setVisible(false); }
  void MostraAiuto() override;
};

}  // namespace somme
