#pragma once

#include <QObject>
#include <vector>

class QWidget;

namespace platform::inline forms {

class Button;
class Label;

// Like buttons in rows and columns, which keys walk as one: an arrow key moves the focus to the
// next button in its direction, Home and End move it to the ends of the row, always over those that
// cannot take it. Tab goes through them in the order of the form's design, as through every
// control.
//
// Forms add their buttons once these are built; the buttons must outlive the group.
class ButtonGroup final : public QObject {
  Q_OBJECT

 public:
  // heading: what the button belongs to; assistive technology says its words, as they are when it
  // asks, before those of the button. Null for nothing.
  void add(Button& button, const Label* heading = nullptr);

  // Enables or disables the first `count` buttons together, all of them where there are fewer: the
  // focus, where one of them has it, moves once, and assistive technology hears of a button's
  // change when the focus comes to it.
  void setEnabled(int count, bool enabled);
  // Gives the focus to the first button that can take it; nothing happens where none can.
  void focusFirst();
  // Gives the focus to the button that keys were last on, as to the place where somebody left off.
  // Where that one cannot take it, or the mouse was there last, the first is taken that can.
  void focusAgain();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // The button that a key leads to from one of the group; null where it leads nowhere.
  [[nodiscard]] Button* target(const QWidget& from, int key) const;
  [[nodiscard]] bool standsAloneInItsRow(const QWidget& widget) const;
  void focusCame(Button& button, Qt::FocusReason reason);

  std::vector<Button*> buttons_;
  Button* reached_ = nullptr;  // by keys; null when by mouse
};

}  // namespace platform::inline forms
