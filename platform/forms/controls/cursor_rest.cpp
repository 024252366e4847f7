#include "platform/forms/controls/cursor_rest.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>

namespace platform {

namespace {

constexpr int kUntilRest = 3000;  // milliseconds

// The desktop's own, asked before it is first set.
int usualFlashTime() {
  static const int usual = QApplication::cursorFlashTime();
  return usual;
}

}  // namespace

CursorRest::CursorRest(QLineEdit& edit) {
  (void)usualFlashTime();
  rest_.setSingleShot(true);
  rest_.setInterval(kUntilRest);
  connect(&rest_, &QTimer::timeout, this, [] { QApplication::setCursorFlashTime(0); });
  edit.installEventFilter(this);
}

bool CursorRest::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
      QApplication::setCursorFlashTime(usualFlashTime());
      rest_.start();
      break;
    case QEvent::FocusOut:
      rest_.stop();
      break;
    default:
      break;
  }
  return false;
}

}  // namespace platform
