#pragma once

#include <QRectF>

#include "platform/forms/control.h"

class QPainter;

namespace platform::inline forms {

// A box that shows a growing text: read-only, its text can be selected. A line is added at the end;
// the text is never rebuilt for it.
class RichTextBox : public Control {
 public:
  using Control::Control;

  // The whole text as it was given, its line ends included.
  [[nodiscard]] const QString& text() const { return text_; }
  void setText(const QString& text);
  void append(const QString& text);

  // Sets a page of the text, from character `from` on, into an area of a page. Lengths are twips,
  // also the painter's; the font has the size of the design, whatever the size of the window.
  // painter: null to measure only. Returns the position of the next character.
  [[nodiscard]] qsizetype formatRange(QPainter* painter, const QRectF& area, qsizetype from) const;

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  QString text_;
};

}  // namespace platform::inline forms
