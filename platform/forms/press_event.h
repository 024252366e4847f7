#pragma once

#include <QEvent>

class QWidget;

namespace platform::inline forms {

// A press by assistive technology. It is posted to the widget that it is meant for, as an event, so
// that it passes the guard in front of the windows as a click does, and finds the widget as it is
// by then.
[[nodiscard]] QEvent::Type pressEvent();

class PressEvent final : public QEvent {
 public:
  explicit PressEvent(int keyCode) : QEvent(pressEvent()), keyCode_(keyCode) {}
  // The key that is tapped, on a widget that is worked by keys alone (see keys/key_codes.h); 0 on
  // any other.
  [[nodiscard]] int keyCode() const { return keyCode_; }

 private:
  int keyCode_;
};

void postPress(QWidget& widget, int keyCode = 0);

}  // namespace platform::inline forms
