#pragma once

#include <functional>

#include "platform/forms/control.h"

namespace platform::inline forms {

// A horizontal scroll bar from which a number is chosen: an arrow at each end, a thumb that can be
// dragged, and the way between them, on which a press brings the thumb to the pointer. Arrow keys
// go by the small step, page keys by the large one, Home and End to the ends; Right, Down and Page
// Down go on.
//
// The stored properties "Min", "Max", "SmallChange" and "LargeChange" (16-bit) give the range and
// the steps; without them the bar runs from 0 to 100 by 1 and 10. It is spoken by its tool tip and
// its value, in units of the form's.
class ScrollBar : public Control {
 public:
  using Control::Control;

  // Called at every change of the value, also while the thumb is dragged and when the form sets it.
  void onChange(std::function<void()> handler) { changed_ = std::move(handler); }

  // What one of the value is to whoever hears it, as 0.25 for quarters; to be said before the form
  // is built. 1 without it.
  void speakInUnitsOf(double unit) { unit_ = unit; }

  [[nodiscard]] int value() const;
  // Outside of the range the nearest end is taken.
  void setValue(int value);
  [[nodiscard]] int minimum() const;
  [[nodiscard]] int maximum() const;

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  std::function<void()> changed_;
  double unit_ = 1;
};

}  // namespace platform::inline forms
