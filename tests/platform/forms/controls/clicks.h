#pragma once

#include "stage.h"

namespace trial {

// A form that counts the clicks of its buttons.
struct Clicks {
  explicit Clicks(Stage& stage) : form(stage.show(kOne)) {
    form.First.onClick([this] { ++first; });
    form.Second.onClick([this] { ++second; });
    form.PanelSecond.onClick([this] { ++inPanel; });
  }

  TrialForm& form;
  int first = 0;
  int second = 0;
  int inPanel = 0;
};

}  // namespace trial
