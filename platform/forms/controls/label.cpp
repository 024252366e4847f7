#include "platform/forms/controls/label.h"

#include <algorithm>

#include "platform/forms/controls/caption_size.h"
#include "platform/forms/controls/label_widget.h"
#include "platform/forms/fonts.h"
#include "platform/forms/ground.h"

namespace platform::inline forms {

namespace {

constexpr int kGlow = 500;     // milliseconds
constexpr double kFull = 0.6;  // of them in full light, from where it fades

}  // namespace

QWidget* Label::create(QWidget* parent) {
  auto* label = new LabelWidget(parent, look().align, look().border, look().mnemonic);
  if (captionSize_ != nullptr) captionSize_->add(*label);
  return label;
}

void Label::shareCaptionSize(CaptionSize& shared) {
  captionSize_ = &shared;
  if (auto* label = static_cast<LabelWidget*>(widget())) shared.add(*label);
}

void Label::glow() {
  glowing_.run(ground(), kGlow);
}

void Label::showGlow(double part) {
  const double strength = std::min(1.0, (1 - part) / (1 - kFull));
  if (auto* label = static_cast<LabelWidget*>(widget())) label->setGlow(strength);
}

void Label::setVisible(bool visible) {
  if (!visible) glowing_.finish();
  Control::setVisible(visible);
}

void Label::applyLook() {
  auto* label = static_cast<LabelWidget*>(widget());
  label->setFont(fontOf(fontSpec(), fontPixels()));
  label->setColors(toColor(foreColor()),
                   look().back ? std::optional(toColor(backColor())) : std::nullopt,
                   toColor(home().design().back));
  label->setToolTip(toolTip());
  const QString words = (look().mnemonic ? withoutMnemonic(caption()) : caption()).trimmed();
  const QString shown = toolTip().isEmpty() || words.isEmpty()
                            ? toolTip() + words
                            : QStringLiteral("%1: %2").arg(toolTip(), words);
  const QString spoken = spokenName_.value_or(shown);
  if (label->accessibleName() != spoken) label->setAccessibleName(spoken);
}

QString Label::caption() const {
  const auto* label = static_cast<LabelWidget*>(widget());
  return label == nullptr ? QString() : label->text();
}

void Label::setCaption(const QString& caption) {
  auto* label = static_cast<LabelWidget*>(widget());
  if (label == nullptr || label->text() == caption) return;
  label->setWords(caption);
  applyLook();
}

void Label::setSpokenName(const QString& name) {
  spokenName_ = name;
  auto* label = static_cast<LabelWidget*>(widget());
  if (label == nullptr) return;
  label->setSilent(name.isEmpty());
  applyLook();
}

QChar Label::accessKey() const {
  return look().mnemonic ? accessKeyOf(caption()) : QChar();
}

void Label::access() {
  const std::vector<Control*>& all = home().controls();
  auto next = std::find(all.begin(), all.end(), this);
  next = std::find_if(next, all.end(), [](const Control* control) {
    return control->widget() != nullptr && control->widget()->focusPolicy() != Qt::NoFocus;
  });
  if (next != all.end()) (*next)->setFocus();
}

}  // namespace platform::inline forms
