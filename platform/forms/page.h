#pragma once

#include <QWidget>

#include "platform/forms/canvas.h"
#include "platform/forms/page_owner.h"

namespace platform::inline forms {

class MenuBar;

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
