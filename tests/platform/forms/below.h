#pragma once

#include "stage.h"

namespace trial {

// A form that counts what is clicked below its panel. Its second button has the focus; the panel's
// second closes the panel.
struct Below {
  explicit Below(Stage& stage) : form(stage.show(kOne)) {
    form.First.onClick([this] { ++clicks; });
    form.Second.onClick([this] { ++clicks; });
    form.PanelSecond.onClick([this] { form.Panel.setVisible(false); });
    form.Second.setFocus();
  }

  TrialForm& form;
  int clicks = 0;
};

}  // namespace trial
