#pragma once

#include "platform/forms/control.h"

namespace platform::inline forms {

// A straight line over what is painted on the form. In its design row left and top are its first
// end, width and height how far from there its second end lies. It takes no mouse.
class Line : public Control {
 public:
  using Control::Control;

  // The ends, in twips of the page as it stands now.
  [[nodiscard]] double x1() const { return left(); }
  [[nodiscard]] double y1() const { return top(); }
  [[nodiscard]] double x2() const { return left() + width(); }
  [[nodiscard]] double y2() const { return top() + height(); }
  void setX1(double twips) { setPlace(twips, y1(), x2() - twips, height()); }
  void setX2(double twips) { setPlace(x1(), y1(), twips - x1(), height()); }

  void applyScale() override;
  [[nodiscard]] int layer() const override { return 1; }

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void placeChanged() override;
  void applyLook() override;
};

}  // namespace platform::inline forms
