#pragma once

#include <QAbstractButton>
#include <QPainterPath>
#include <QPointer>
#include <functional>
#include <optional>

#include "platform/forms/controls/answer_mark.h"
#include "platform/forms/controls/button_face.h"
#include "platform/forms/controls/caption_size.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

class Pictures;

// The widget of a button: paints it and turns mouse and keys into clicks. It is lit below the mouse
// and sinks while it is held, by mouse or keys. Keys come here already freed of repeats.
class ButtonWidget final : public QAbstractButton, public FittedCaption {
  Q_OBJECT

 public:
  ButtonWidget(QWidget* parent, Pictures& pictures, std::function<void()> clicked);

  void setCaption(const QString& caption);
  void setPicture(const QString& name) { picture_ = name; }
  // ground: the colour of the face; without one the button is plain.
  void setColors(QColor ink, std::optional<QColor> ground);
  [[nodiscard]] int fittedCaption() override;
  // Holds until the button is enabled again.
  void setMark(AnswerMark mark);
  // Makes it a cell of a table; corner: of the table, round.
  void setCell(std::optional<Qt::Corner> corner);
  // What the button belongs to, which assistive technology says before its own words; null for
  // nothing.
  void setHeading(const QWidget* heading) { heading_ = heading; }
  [[nodiscard]] const QWidget* heading() const { return heading_; }
  // Lets it look held down, by whatever means, until it is let go.
  void setHeld(bool held);
  // Takes a held key or mouse button as let go without effect.
  void letGo();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void captionSizeChanged() override { update(); }

 private:
  struct Rooms {
    QRectF picture;
    QRect text;
  };
  [[nodiscard]] double flatBy() const;
  [[nodiscard]] Rooms rooms(double flat) const;
  // Whether it looks as if it could be pressed.
  [[nodiscard]] bool stands() const { return isEnabled() || mark_ == AnswerMark::Right; }
  [[nodiscard]] bool isHeld() const { return isDown() || held_; }
  // Whether the mouse could press it where it is now. What became of an answer stays to be seen.
  [[nodiscard]] bool isPointed() const {
    return underMouse() && isEnabled() && mark_ == AnswerMark::None;
  }
  [[nodiscard]] ButtonFace face() const;
  [[nodiscard]] QRectF body() const;
  // Of the body; inset: how far inside of it, in pixels.
  [[nodiscard]] QPainterPath outline(double inset = 0) const;
  void paintFace(QPainter& painter) const;
  void paintFocus(QPainter& painter) const;
  void paintContent(QPainter& painter);

  Pictures& pictures_;
  std::function<void()> clicked_;
  QString caption_;
  QString picture_;
  QColor ink_ = Qt::black;
  std::optional<QColor> ground_;
  AnswerMark mark_ = AnswerMark::None;
  bool held_ = false;
  bool cell_ = false;
  std::optional<Qt::Corner> roundCorner_;
  TextBlock block_;
  QPointer<const QWidget> heading_;
  bool stateUntold_ = false;  // assistive technology takes it for enabled, or disabled, wrongly
};

}  // namespace platform::inline forms
