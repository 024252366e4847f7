#pragma once

#include <QImage>
#include <QRect>

#include "platform/forms/control.h"

namespace platform::inline forms {

// A panel on the form that holds other controls.
class PictureBox : public Control {
 public:
  using Control::Control;

  // Covers the whole form: see `Form::cover`. Hiding the panel uncovers it.
  void cover();
  void setVisible(bool visible) override;

  // The picture that the panel keeps; null for none.
  [[nodiscard]] const QImage& picture() const { return picture_; }
  // Keeps a picture and shows it stretched to the given pixels of the panel.
  void setPicture(const QImage& picture, const QRect& pixels);
  // Shows nothing but the ground.
  void clear();

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  QImage picture_;
};

}  // namespace platform::inline forms
