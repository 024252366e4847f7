#include "platform/forms/controls/text_box.h"

#include "platform/forms/controls/text_box_widget.h"
#include "platform/forms/fonts.h"
#include "platform/forms/ground.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

namespace {

TextBoxWidget& boxOf(QWidget* widget) {
  return *static_cast<TextBoxWidget*>(widget);
}

}  // namespace

QWidget* TextBox::create(QWidget* parent) {
  const auto filter = [this](int& keyAscii) {
    if (!keyPress_) return;
    // A filter that fails lets nothing in.
    int result = 0;
    raiseEvent([this, keyAscii, &result] {
      int key = keyAscii;
      keyPress_(key);
      result = key;
    });
    keyAscii = result;
  };
  TextBoxWidget::Hooks hooks{.keyPress = filter,
                             .keyUp =
                                 [this](int keyCode) {
                                   if (keyUp_) raiseEvent([this, keyCode] { keyUp_(keyCode); });
                                 },
                             .changed =
                                 [this] {
                                   // The text of the design is no change.
                                   if (isBuilt()) raiseEvent(changed_);
                                 },
                             .clicked = [this] { raiseEvent(clicked_); },
                             .clickable = [this] { return clicked_ != nullptr; },
                             .mayAct = [this] { return mayAct(); }};
  auto* box = new TextBoxWidget(parent, std::move(hooks), ground().pictures());
  align_ = look().align;
  box->setLimit(look().maxLength);
  box->setReadOnly(look().locked);
  box->setBorder(look().border);
  box->putText(QString::fromUtf8(look().caption.data(), qsizetype(look().caption.size())));
  return box;
}

void TextBox::applyLook() {
  TextBoxWidget& box = boxOf(widget());
  const double pixels = fontPixels();
  box.setLook(fontName_.isEmpty() ? fontOf(fontSpec(), pixels)
                                  : fontNamed(fontName_, pixels, look().font.bold),
              align_, toColor(foreColor()), toColor(backColor()));
  box.setToolTip(toolTip());
  if (box.accessibleName() != toolTip()) box.setAccessibleName(toolTip());
}

QString TextBox::text() const {
  return widget() == nullptr ? QString() : boxOf(widget()).text();
}

void TextBox::setText(const QString& text) {
  if (widget() != nullptr) boxOf(widget()).putText(text);
}

int TextBox::selStart() const {
  if (widget() == nullptr) return 0;
  const TextBoxWidget& box = boxOf(widget());
  return box.hasSelectedText() ? box.selectionStart() : box.cursorPosition();
}

int TextBox::selLength() const {
  return widget() == nullptr ? 0 : boxOf(widget()).selectionLength();
}

int TextBox::maxLength() const {
  return widget() == nullptr ? look().maxLength : boxOf(widget()).limit();
}

void TextBox::setMaxLength(int characters) {
  if (widget() != nullptr) boxOf(widget()).setLimit(characters);
}

bool TextBox::isLocked() const {
  return widget() == nullptr ? look().locked : boxOf(widget()).isReadOnly();
}

void TextBox::setLocked(bool locked) {
  if (widget() != nullptr) boxOf(widget()).setReadOnly(locked);
}

QString TextBox::opener() const {
  return widget() == nullptr ? QString() : boxOf(widget()).opener();
}

void TextBox::setOpener(const QString& picture) {
  if (widget() != nullptr) boxOf(widget()).setOpener(picture);
}

void TextBox::setAlignment(Align align) {
  align_ = align;
  if (widget() != nullptr) applyLook();
}

QString TextBox::fontName() const {
  if (!fontName_.isEmpty()) return fontName_;
  return look().font.face == Face::Tahoma ? QStringLiteral("Tahoma") : QStringLiteral("Arial");
}

void TextBox::setFontName(const QString& name) {
  fontName_ = name;
  if (widget() != nullptr) applyLook();
}

void TextBox::askForDigits() {
  if (widget() != nullptr) widget()->setInputMethodHints(Qt::ImhDigitsOnly);
}

}  // namespace platform::inline forms
