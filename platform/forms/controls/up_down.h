#pragma once

#include <functional>

#include "platform/forms/control.h"

namespace platform::inline forms {

class TextBox;

// A spinner bound to a text box: its arrows, held or clicked, and the Up and Down keys in the box
// change the number in the box by one within limits. It takes no focus itself.
class UpDown : public Control {
 public:
  using Control::Control;
  ~UpDown() override;

  // To be called once, when the form has been built.
  void bind(TextBox& box, int lowest, int highest);
  // When it has changed the number; the box has it already.
  void onChange(std::function<void()> handler) { changed_ = std::move(handler); }
  // by: how far; the limits hold.
  void step(int by);

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  class BoxKeys;

  void enter(int value);
  void moveTo(double value);
  void tell(const QString& text);

  TextBox* box_ = nullptr;
  int lowest_ = 0;
  int highest_ = 0;
  std::function<void()> changed_;
};

}  // namespace platform::inline forms
