#pragma once

#include <QColor>
#include <QWidget>
#include <optional>

namespace platform::inline forms {

class MenuBar;
struct FormDesign;

// Whose page it is: a form.
class PageOwner {
 public:
  virtual ~PageOwner() = default;
  [[nodiscard]] virtual const FormDesign& design() const = 0;
  // What the focus must stay in: the widget of a covering panel, or null.
  [[nodiscard]] virtual const QWidget* focusRoom() const = 0;
  // The colour of a covering panel, or nothing.
  [[nodiscard]] virtual std::optional<QColor> coverColor() const = 0;
  // The client area has another size.
  virtual void takeSize() = 0;
};

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

// A form as the window shows it: its menu bar above its client area, which is letterboxed where the
// window is narrower in shape than the form's design. The letterbox goes on in the colours of what
// stands beside it: the form's, or those of a panel that covers it.
class Page final : public QWidget {
  Q_OBJECT

 public:
  Page(PageOwner& owner, QWidget* parent);

  [[nodiscard]] Canvas* canvas() const { return canvas_; }
  // The menu bar, made at the first call: a form without menus has none.
  [[nodiscard]] MenuBar* menuBar();
  [[nodiscard]] bool hasMenuBar() const { return menuBar_ != nullptr; }
  // Gives menu bar and client area their places in the page as it is now, also while it is hidden.
  // False when the client area had this size already.
  bool arrange();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  PageOwner& owner_;
  MenuBar* menuBar_ = nullptr;
  Canvas* canvas_;
  QSize arranged_;
};

}  // namespace platform::inline forms
