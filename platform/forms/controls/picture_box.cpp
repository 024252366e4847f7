#include "platform/forms/controls/picture_box.h"

#include "platform/forms/controls/panel_widget.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

QWidget* PictureBox::create(QWidget* parent) {
  return new PanelWidget(parent, look().border);
}

void PictureBox::applyLook() {
  auto* panel = static_cast<PanelWidget*>(widget());
  panel->setGround(toColor(backColor()));
  panel->setAccessibleName(toolTip());
}

void PictureBox::setPicture(const QImage& picture, const QRect& pixels) {
  picture_ = picture;
  if (widget() != nullptr) static_cast<PanelWidget*>(widget())->setPicture(picture, pixels);
}

void PictureBox::clear() {
  setPicture({}, {});
}

void PictureBox::cover() {
  home().cover(*this);
}

void PictureBox::setVisible(bool visible) {
  Control::setVisible(visible);
  if (!visible) home().uncover(*this);
}

}  // namespace platform::inline forms
