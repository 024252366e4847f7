#pragma once

#include "platform/forms/control.h"

namespace platform::inline forms {

// A rectangle painted on the form: an edge in the fore colour, and a ground where the row gives
// one. The edge is as wide as its row says, wider on a page that has grown; half of it stands
// outside of the place. It takes no mouse and is nothing to assistive technology.
class Shape : public Control {
 public:
  using Control::Control;

  [[nodiscard]] int layer() const override { return 0; }
  void applyScale() override;

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void placeChanged() override;
  void applyLook() override;

 private:
  // Logical pixels.
  [[nodiscard]] int edge() const;
};

}  // namespace platform::inline forms
