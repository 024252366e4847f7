#include "platform/forms/press_event.h"

#include <QCoreApplication>
#include <QWidget>

namespace platform::inline forms {

QEvent::Type pressEvent() {
  static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
  return type;
}

void postPress(QWidget& widget, int keyCode) {
  QCoreApplication::postEvent(&widget, new PressEvent(keyCode));
}

}  // namespace platform::inline forms
