#include "platform/forms/controls/option_button.h"

#include "platform/forms/controls/toggle_widget.h"
#include "platform/forms/fonts.h"
#include "platform/forms/text_block.h"

namespace platform {

namespace {

OptionButtonWidget* optionOf(QWidget* widget) {
  return static_cast<OptionButtonWidget*>(widget);
}

}  // namespace

QWidget* OptionButton::create(QWidget* parent) {
  auto* option = new OptionButtonWidget(parent);
  option->setChecked(look().checked);
  QObject::connect(option, &QRadioButton::toggled, option, [this](bool selected) {
    if (selected) raiseEvent(clicked_);
  });
  return option;
}

void OptionButton::applyLook() {
  widget()->setFont(fontOf(fontSpec(), fontPixels()));
  widget()->setToolTip(toolTip());
}

bool OptionButton::isSelected() const {
  return widget() == nullptr ? look().checked : optionOf(widget())->isChecked();
}

void OptionButton::select() {
  if (widget() != nullptr) optionOf(widget())->setChecked(true);
}

void OptionButton::setCaption(const QString& caption) {
  caption_ = caption;
  if (widget() != nullptr) optionOf(widget())->setCaption(caption);
}

QChar OptionButton::accessKey() const {
  return accessKeyOf(caption_);
}

void OptionButton::access() {
  setFocus();
  select();
}

}  // namespace platform
