#pragma once

#include "platform/forms/control.h"

namespace platform {

// A drawing of the program's on the form, as large as its place allows. It is spoken by its tool
// tip.
class Image : public Control {
 public:
  using Control::Control;

  [[nodiscard]] int layer() const override { return 0; }

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;
};

}  // namespace platform
