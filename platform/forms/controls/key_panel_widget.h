#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

namespace platform {

// The widget of a key panel: shows nothing, holds the focus and hands on its keys.
class KeyPanelWidget final : public QWidget {
  Q_OBJECT

 public:
  using Handler = std::function<void(int keyCode)>;
  KeyPanelWidget(QWidget* parent, Handler down, Handler up);

  // What assistive technology takes for the widget that has the focus while this one has it.
  void pointAt(QWidget* widget);
  [[nodiscard]] QWidget* pointed() const { return pointed_; }

  // A press and a release of a key from outside of the keyboard. Nothing happens where a key would
  // not come here either: another control of the form has the keyboard, or a menu or a box is open.
  void tap(int keyCode);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void tell();

  Handler down_;
  Handler up_;
  QPointer<QWidget> pointed_;
};

}  // namespace platform
