#include "platform/forms/controls/button.h"

#include "platform/forms/controls/button_widget.h"
#include "platform/forms/controls/caption_size.h"
#include "platform/forms/controls/ring_widget.h"
#include "platform/forms/fonts.h"
#include "platform/forms/ground.h"

namespace platform::inline forms {

QWidget* Button::create(QWidget* parent) {
  auto* button = new ButtonWidget(parent, ground().pictures(), [this] { click(); });
  button->setPicture(QString::fromUtf8(look().picture.data(), qsizetype(look().picture.size())));
  if (captionSize_ != nullptr) captionSize_->add(*button);
  return button;
}

bool Button::isLive() const {
  return widget() != nullptr && widget()->isEnabled() && widget()->isVisible() &&
         !home().isCovered(*this) && !ground().isChanging();
}

void Button::click() {
  if (isLive()) raiseEvent(clicked_);
}

void Button::setCaption(const QString& caption) {
  caption_ = caption;
  if (auto* button = static_cast<ButtonWidget*>(widget())) {
    button->setCaption(caption);
    applyLook();
  }
}

void Button::setSpokenName(const QString& name) {
  spokenName_ = name;
  if (widget() != nullptr) applyLook();
}

void Button::shareCaptionSize(CaptionSize& shared) {
  captionSize_ = &shared;
  if (auto* button = static_cast<ButtonWidget*>(widget())) shared.add(*button);
}

void Button::makeForShow() {
  if (widget() != nullptr) widget()->setFocusPolicy(Qt::NoFocus);
}

void Button::ringAsScanned() {
  if (widget() == nullptr || ringed_) return;
  ringed_ = true;
  (new RingWidget(widget()->parentWidget()))->follow(*widget());
}

void Button::showHeld(bool held) {
  if (widget() != nullptr) static_cast<ButtonWidget*>(widget())->setHeld(held);
}

void Button::markAnswer(AnswerMark mark) {
  if (widget() != nullptr) static_cast<ButtonWidget*>(widget())->setMark(mark);
}

void Button::makeCell(std::optional<Qt::Corner> corner) {
  if (widget() != nullptr) static_cast<ButtonWidget*>(widget())->setCell(corner);
}

QChar Button::accessKey() const {
  return accessKeyOf(caption_);
}

void Button::keysLetGo() {
  if (auto* button = static_cast<ButtonWidget*>(widget())) button->letGo();
}

void Button::applyLook() {
  auto* button = static_cast<ButtonWidget*>(widget());
  button->setFont(fontOf(fontSpec(), fontPixels()));
  button->setColors(toColor(foreColor()),
                    look().back ? std::optional(toColor(backColor())) : std::nullopt);
  button->setToolTip(toolTip());
  const QString words = withoutMnemonic(caption_).trimmed();
  const QString& wordless = toolTip().isEmpty() ? spokenName_ : toolTip();
  const QString& spoken = words.isEmpty() ? wordless : words;
  if (button->accessibleName() != spoken) button->setAccessibleName(spoken);
}

}  // namespace platform::inline forms
