#pragma once

#include <QCheckBox>
#include <QKeyEvent>
#include <QPainter>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>

#include "platform/forms/keys/key_codes.h"
#include "platform/forms/press_event.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

// Space toggles it. Enter is whose it stands in: on some desktops Qt would take it for a press.
template <class Base>
class SpaceToggle : public Base {
 public:
  using Base::Base;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    isEnter(event->key()) ? event->ignore() : Base::keyPressEvent(event);
  }
  void keyReleaseEvent(QKeyEvent* event) override {
    isEnter(event->key()) ? event->ignore() : Base::keyReleaseEvent(event);
  }
};

// A check box or an option button of Qt's, with the access keys and presses of our own.
template <class Base, QStyle::ControlElement Element>
class ToggleWidget : public SpaceToggle<Base> {
 public:
  using SpaceToggle<Base>::SpaceToggle;

  // caption: "&" stands before the access key.
  void setCaption(const QString& caption) {
    caption_ = caption;
    this->setAccessibleName(withoutMnemonic(caption));
    this->update();
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() != pressEvent()) return SpaceToggle<Base>::event(event);
    if (this->isEnabled()) this->click();
    return true;
  }

  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    QStyleOptionButton option;
    this->initStyleOption(&option);
    option.text = caption_;
    this->style()->drawControl(Element, &option, &painter, this);
  }

  [[nodiscard]] bool hitButton(const QPoint& at) const override {
    return this->rect().contains(at);
  }

 private:
  QString caption_;
};

using CheckBoxWidget = ToggleWidget<QCheckBox, QStyle::CE_CheckBox>;

// Qt's arrows go by where the options stand, so that Down does nothing in a row of them; here they
// go by their order, round and round.
class OptionButtonWidget final : public ToggleWidget<QRadioButton, QStyle::CE_RadioButton> {
 public:
  using ToggleWidget::ToggleWidget;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace platform::inline forms
