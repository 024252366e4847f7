#pragma once

#include "platform/forms/control.h"

namespace platform {

// A box that shows a growing text: read-only, its text can be selected. A line is added at the end;
// the text is never rebuilt for it.
class RichTextBox : public Control {
 public:
  using Control::Control;

  // The whole text as it was given, its line ends included.
  [[nodiscard]] const QString& text() const { return text_; }
  void setText(const QString& text);
  void append(const QString& text);

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  QString text_;
};

}  // namespace platform
