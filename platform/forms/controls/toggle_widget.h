#pragma once

#include <QCheckBox>
#include <QKeyEvent>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOptionButton>

#include "platform/forms/focus_ring.h"
#include "platform/forms/press_event.h"
#include "platform/forms/text_block.h"

namespace platform {

// A check box or an option button of Qt's, whose words take a smaller size or wrap rather than be
// cut, and whose focus shows like that of all controls.
template <class Base, QStyle::PrimitiveElement Mark>
class ToggleWidget : public Base {
 public:
  explicit ToggleWidget(QWidget* parent) : Base(parent) {}

  // caption: "&" stands before the access key.
  void setCaption(const QString& caption) {
    caption_ = caption;
    this->setAccessibleName(withoutMnemonic(caption));
    this->update();
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() != pressEvent()) return Base::event(event);
    if (this->isEnabled()) this->click();
    return true;
  }

  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    QStyleOptionButton option;
    this->initStyleOption(&option);
    // As large as the words beside it.
    const int largest = std::max(kPlainMark, this->fontMetrics().height() * 4 / 5);
    const int side =
        std::clamp(this->height() - 2 * int(kFocusRingWidth * markScale(*this)) - 2, 8, largest);
    const int margin = int(kFocusRingWidth * markScale(*this)) + 2;
    option.rect = QRect(margin, (this->height() - side) / 2, side, side);
    option.state &= ~QStyle::State_HasFocus;
    this->style()->drawPrimitive(Mark, &option, &painter, this);
    const QRect room = this->rect().adjusted(2 * margin + side, 2, -margin, -2);
    block_.set(caption_, this->font(), room.size(), Align::Left, true);
    const QPalette::ColorGroup group = this->isEnabled() ? QPalette::Active : QPalette::Disabled;
    block_.paint(painter, room, this->palette().color(group, QPalette::WindowText),
                 this->palette().color(QPalette::Window));
    if (this->hasFocus()) paintFocusRing(painter, *this, 0);
  }

  [[nodiscard]] bool hitButton(const QPoint& at) const override {
    return this->rect().contains(at);
  }

 private:
  static constexpr int kPlainMark = 22;  // pixels

  QString caption_;
  TextBlock block_;
};

using CheckBoxWidget = ToggleWidget<QCheckBox, QStyle::PE_IndicatorCheckBox>;

// Qt's arrows go by where the options stand, so that Down does nothing in a row of them; here they
// go by their order, round and round.
class OptionButtonWidget final
    : public ToggleWidget<QRadioButton, QStyle::PE_IndicatorRadioButton> {
 public:
  using ToggleWidget::ToggleWidget;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace platform
