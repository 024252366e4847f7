#include "platform/forms/controls/key_panel.h"

#include <QApplication>
#include <QMenuBar>

#include "platform/forms/controls/key_panel_widget.h"

namespace platform::inline forms {

QWidget* KeyPanel::create(QWidget* parent) {
  const auto handed = [this](std::function<void(int)> KeyPanel::*handler) {
    return [this, handler](int keyCode) {
      if (this->*handler) raiseEvent([this, handler, keyCode] { (this->*handler)(keyCode); });
    };
  };
  return new KeyPanelWidget(parent, handed(&KeyPanel::keyDown_), handed(&KeyPanel::keyUp_));
}

void KeyPanel::applyLook() {
  if (widget()->accessibleName() != toolTip()) widget()->setAccessibleName(toolTip());
}

void KeyPanel::keepFocus() {
  if (hasFocus() || widget() == nullptr || !widget()->window()->isActiveWindow()) return;
  if (QApplication::activePopupWidget() != nullptr) return;
  if (qobject_cast<QMenuBar*>(QApplication::focusWidget()) != nullptr) return;
  setFocus();
}

void KeyPanel::pointAt(const Control& control) {
  if (widget() != nullptr) static_cast<KeyPanelWidget*>(widget())->pointAt(control.widget());
}

}  // namespace platform::inline forms
