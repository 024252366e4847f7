#pragma once

#include <QSize>
#include <QWidget>

namespace platform::inline forms {

class PageOwner;

// The client area of a form: its background, and the parent of its controls.
class Canvas final : public QWidget {
  Q_OBJECT

 public:
  Canvas(const PageOwner& owner, QWidget* parent);

  // Gives the focus to the next control that can take it, in the order of the design; from: where
  // to begin. False where no control can.
  bool passFocus(QWidget* from, bool next);

  // Keeps the gradient at the present size.
  void keepGradient() {
    gradient_ = size();
    parentWidget()->update();
  }
  [[nodiscard]] bool hasGradient() const { return !gradient_.isEmpty(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  const PageOwner& owner_;
  QSize gradient_;  // empty: the plain back colour
};

}  // namespace platform::inline forms
