#include "platform/forms/controls/check_box.h"

#include "platform/forms/controls/toggle_widget.h"
#include "platform/forms/fonts.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

namespace {

CheckBoxWidget* boxOf(QWidget* widget) {
  return static_cast<CheckBoxWidget*>(widget);
}

}  // namespace

QWidget* CheckBox::create(QWidget* parent) {
  auto* box = new CheckBoxWidget(parent);
  box->setChecked(look().checked);
  QObject::connect(box, &QCheckBox::toggled, box, [this] { raiseEvent(clicked_); });
  return box;
}

void CheckBox::applyLook() {
  widget()->setFont(fontOf(fontSpec(), fontPixels()));
  widget()->setToolTip(toolTip());
}

bool CheckBox::isChecked() const {
  return widget() == nullptr ? look().checked : boxOf(widget())->isChecked();
}

void CheckBox::setChecked(bool checked) {
  if (widget() != nullptr) boxOf(widget())->setChecked(checked);
}

void CheckBox::setCaption(const QString& caption) {
  caption_ = caption;
  if (widget() != nullptr) boxOf(widget())->setCaption(caption);
}

QChar CheckBox::accessKey() const {
  return accessKeyOf(caption_);
}

void CheckBox::access() {
  setFocus();
  setChecked(!isChecked());
}

}  // namespace platform::inline forms
