#include "platform/forms/controls/key_panel_widget.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>

#include "platform/forms/keys/key_codes.h"
#include "platform/forms/press_event.h"

namespace platform::inline forms {

KeyPanelWidget::KeyPanelWidget(QWidget* parent, Handler down, Handler up)
    : QWidget(parent), down_(std::move(down)), up_(std::move(up)) {
  setFocusPolicy(Qt::StrongFocus);
}

void KeyPanelWidget::pointAt(QWidget* widget) {
  if (pointed_ == widget) return;
  pointed_ = widget;
  if (hasFocus()) tell();
}

bool KeyPanelWidget::event(QEvent* event) {
  if (event->type() != pressEvent()) return QWidget::event(event);
  tap(static_cast<PressEvent*>(event)->keyCode());
  return true;
}

// A press and a release of a key by assistive technology. Nothing happens where a key would not
// come here either: another control of the form has the keyboard, or a menu is open.
void KeyPanelWidget::tap(int keyCode) {
  if (window()->focusWidget() != this || !isEnabled() || !isVisible()) return;
  if (QApplication::activePopupWidget() != nullptr) return;
  const QPointer<KeyPanelWidget> alive(this);
  down_(keyCode);
  if (alive) up_(keyCode);
}

void KeyPanelWidget::tell() {
  if (!pointed_) return;
  QAccessibleEvent event(pointed_, QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

// A command has no release. Enter alone means the same with and without Ctrl and Alt.
void KeyPanelWidget::keyPressEvent(QKeyEvent* event) {
  const int key = keyCodeOf(*event);
  const bool command = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
  if (key == 0 || (command && key != kKeyEnter)) {
    QWidget::keyPressEvent(event);
    return;
  }
  down_(key);
}

void KeyPanelWidget::keyReleaseEvent(QKeyEvent* event) {
  const int key = keyCodeOf(*event);
  if (key == 0) {
    QWidget::keyReleaseEvent(event);
    return;
  }
  up_(key);
}

// Qt tells of the panel itself once this returns; what is pointed at comes after that.
void KeyPanelWidget::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (hasFocus()) tell();
      },
      Qt::QueuedConnection);
}

}  // namespace platform::inline forms
