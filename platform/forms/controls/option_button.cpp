#include "platform/forms/controls/option_button.h"

#include "platform/forms/controls/toggle_widget.h"
#include "platform/forms/fonts.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

namespace {

OptionButtonWidget* optionOf(QWidget* widget) {
  return static_cast<OptionButtonWidget*>(widget);
}

// 1 for the keys that go on to the next option, -1 for those that go back, 0 for any other.
int stepOf(int key) {
  if (key == Qt::Key_Down || key == Qt::Key_Right) return 1;
  return key == Qt::Key_Up || key == Qt::Key_Left ? -1 : 0;
}

}  // namespace

void OptionButtonWidget::keyPressEvent(QKeyEvent* event) {
  const int step = stepOf(event->key());
  if (step == 0) {
    ToggleWidget::keyPressEvent(event);
    return;
  }
  const auto options =
      parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
  const qsizetype count = options.size();
  for (qsizetype i = options.indexOf(this) + step, tries = 1; tries < count; i += step, ++tries) {
    QRadioButton* option = options[(i + count) % count];
    if (!option->isEnabled() || option->isHidden()) continue;
    option->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    option->setChecked(true);
    return;
  }
}

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

}  // namespace platform::inline forms
