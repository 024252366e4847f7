#pragma once

#include "platform/forms/control.h"

namespace platform {

// A rectangle painted on the form: an edge in the fore colour, as wide as its row says, and a
// ground where the row gives one. It takes no mouse and is nothing to assistive technology.
class Shape : public Control {
 public:
  using Control::Control;

  [[nodiscard]] int layer() const override { return 0; }

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;
};

}  // namespace platform
