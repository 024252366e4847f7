#pragma once

#include <QImage>

#include "platform/forms/control.h"

namespace platform::inline forms {

// A line round controls that belong together, with a caption in it. It takes no focus itself.
class Frame : public Control {
 public:
  using Control::Control;

  [[nodiscard]] bool hasCaption() const override { return true; }
  [[nodiscard]] QString caption() const override { return caption_; }
  void setCaption(const QString& caption) override;
  // Shows a picture behind what stands in the frame, faint and stretched to `pixels` of the frame;
  // a null one shows nothing.
  void setPicture(const QImage& picture, const QRect& pixels);

 protected:
  [[nodiscard]] QWidget* create(QWidget* parent) override;
  void applyLook() override;

 private:
  QString caption_;
};

}  // namespace platform::inline forms
