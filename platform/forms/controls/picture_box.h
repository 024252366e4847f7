#pragma once

#include "platform/forms/control.h"

namespace platform {

// A panel on the form that holds other controls.
class PictureBox : public Control {
 public:
  using Control::Control;

  // Covers the whole form: see `Form::cover`. Hiding the panel uncovers it.
  void cover();
  void setVisible(bool visible) override;

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;
};

}  // namespace platform
