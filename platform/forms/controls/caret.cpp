#include "platform/forms/controls/caret.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>

namespace platform::inline forms {

namespace {

constexpr int kUntilRest = 3000;  // milliseconds

// The desktop's own, asked before line edits are told not to blink by themselves.
int usualFlashTime() {
  static const int usual = [] {
    const int desktop = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(0);
    return desktop;
  }();
  return usual;
}

}  // namespace

Caret::Caret(QLineEdit& edit) : edit_(edit), blink_(&edit) {
  blink_.setInterval(usualFlashTime() / 2);
  connect(&blink_, &QTimer::timeout, this, [this] {
    lit_ = !lit_;
    edit_.update();
  });
  untilRest_.setSingleShot(true);
  untilRest_.setInterval(kUntilRest);
  connect(&untilRest_, &QTimer::timeout, this, [this] { rest(); });
  edit.installEventFilter(this);
}

bool Caret::isSeen() const {
  return lit_ && edit_.hasFocus() && !edit_.isReadOnly();
}

void Caret::wake() {
  lit_ = true;
  edit_.update();
  if (edit_.isReadOnly() || !edit_.hasFocus() || blink_.interval() <= 0) {
    blink_.stop();
    return;
  }
  blink_.start();
  untilRest_.start();
}

void Caret::rest() {
  blink_.stop();
  untilRest_.stop();
  lit_ = true;
  edit_.update();
}

bool Caret::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::ReadOnlyChange:
      wake();
      break;
    case QEvent::FocusOut:
      rest();
      break;
    default:
      break;
  }
  return false;
}

}  // namespace platform::inline forms
