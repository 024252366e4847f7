#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

namespace platform::inline forms {

// The widget of a key panel: shows nothing, holds the focus and hands on its keys.
class KeyPanelWidget final : public QWidget {
  Q_OBJECT

 public:
  using Handler = std::function<void(int keyCode)>;
  KeyPanelWidget(QWidget* parent, Handler down, Handler up);

  // What assistive technology takes for the widget that has the focus while this one has it.
  void pointAt(QWidget* widget);
  [[nodiscard]] QWidget* pointed() const { return pointed_; }

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void tell();
  void tap(int keyCode);

  Handler down_;
  Handler up_;
  QPointer<QWidget> pointed_;
};

}  // namespace platform::inline forms
