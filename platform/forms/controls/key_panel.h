#pragma once

#include <functional>

#include "platform/forms/control.h"

namespace platform::inline forms {

// Holds the keyboard for a control that is worked by keys alone and shows what they act on by marks
// of its own. It is not seen itself; assistive technology is told of what it points at as of what
// has the focus.
class KeyPanel : public Control {
 public:
  using Control::Control;

  // At the press and at the release of a key, with its code (see keys/key_codes.h); each hold of a
  // key once, and not with Ctrl or Alt.
  void onKeyDown(std::function<void(int keyCode)> handler) { keyDown_ = std::move(handler); }
  void onKeyUp(std::function<void(int keyCode)> handler) { keyUp_ = std::move(handler); }

  // Takes the focus inside its own window; never from a menu, a box or another program.
  void keepFocus();
  // What the keys act on now.
  void pointAt(const Control& control);

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  std::function<void(int)> keyDown_;
  std::function<void(int)> keyUp_;
};

}  // namespace platform::inline forms
