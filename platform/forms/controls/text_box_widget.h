#pragma once

#include <QFont>
#include <QLineEdit>
#include <functional>
#include <optional>

#include "platform/forms/controls/caret.h"
#include "platform/forms/design.h"

namespace platform::inline forms {

class Pictures;

// The widget of a text box. Whatever way characters come in by the user's hand (keys, clipboard,
// drag and drop, input methods, assistive technology), they pass one after the other through the
// key filter and stop at the length limit. Text that the program sets passes neither.
class TextBoxWidget final : public QLineEdit {
  Q_OBJECT

 public:
  struct Hooks {
    // Offers a character before it is taken; set to 0 it is dropped.
    std::function<void(int& keyAscii)> keyPress;
    std::function<void(int keyCode)> keyUp;
    std::function<void()> changed;
    std::function<void()> clicked;
    // Whether a click means something.
    std::function<bool()> clickable;
    // Whether what comes past all events may be entered now.
    std::function<bool()> mayAct;
  };

  TextBoxWidget(QWidget* parent, Hooks hooks, Pictures& pictures);

  // Text set by the program.
  void putText(const QString& text);
  // Characters that the user enters at the cursor, in the place of what is selected.
  void enter(const QString& text);

  // 0 is no limit.
  void setLimit(int characters) { limit_ = characters; }
  [[nodiscard]] int limit() const { return limit_; }

  // font: the one of the design; text that is too wide for the box takes a smaller size of it.
  void setLook(const QFont& font, Align align, const QColor& ink, const QColor& ground);
  void setBorder(bool border);
  // Shows the box as one in which nothing can be written until it is opened, with the picture of
  // what opens it at its right end; "" for a box like any other.
  void setOpener(const QString& picture);
  [[nodiscard]] const QString& opener() const { return opener_; }

  // Whether a press of assistive technology acts: in an open box it confirms, as Enter does; in a
  // locked one it is the click, where a click means something.
  [[nodiscard]] bool pressable() const;

  // The room of a character, in the coordinates of this widget.
  [[nodiscard]] QRect placeOf(int character) const;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  class Watch;
  class OwnWork;

  [[nodiscard]] int filtered(int keyAscii) const;
  void insertKept(QString kept);
  void noteChange();
  void enterAnew(const QString& text);
  void fitFont();
  void standOnLine();
  void takePointer();
  [[nodiscard]] bool isClosed() const { return !opener_.isEmpty(); }
  [[nodiscard]] QRectF openerPlace() const;
  void paintFaintText();
  void paintCaret();
  void paintEdge();

  Hooks hooks_;
  Caret caret_{*this};
  QString text_;  // what the box held after the last change that came one of its own ways
  QFont font_;
  QColor ink_ = Qt::black;
  QColor ground_ = Qt::white;
  int limit_ = 0;
  int ownWork_ = 0;  // above 0 while a change comes one of the box's own ways
  Pictures& pictures_;
  QString opener_;
  bool border_ = true;
  bool hand_ = false;                  // the pointer is a hand because the box is closed
  std::optional<QCursor> ownPointer_;  // that it had before; none: that of what it stands on
  bool composing_ = false;
  bool entering_ = false;  // characters are coming in one by one
};

}  // namespace platform::inline forms
