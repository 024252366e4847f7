#pragma once

#include "platform/forms/control.h"
#include "platform/forms/controls/movement.h"

namespace platform::inline forms {

// How a picture comes up: small and growing, with the parts beside its first flying out of its
// middle, or shaken once.
enum class Pop { Burst, Shake };

// A drawing of the program's on the form, as large as its place allows. It is spoken by its tool
// tip.
class Image : public Control {
 public:
  using Control::Control;

  // Shows, once and in a quarter of a second, that the picture has come, also where it was there
  // before; afterwards it stands as ever. Hiding it ends this.
  void pop(Pop how);

  // Leaves a margin inside of its place; share: of the place's shorter side.
  void keepClear(double share);

  void setVisible(bool visible) override;
  void formGone() override { movement_.finish(); }
  [[nodiscard]] int layer() const override { return 0; }

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  void show(double part);

  Pop how_ = Pop::Burst;
  Movement movement_{[this](double part) { show(part); }};
};

}  // namespace platform::inline forms
