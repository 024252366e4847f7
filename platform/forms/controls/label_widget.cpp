#include "platform/forms/controls/label_widget.h"

#include <QPainter>

namespace platform {

LabelWidget::LabelWidget(QWidget* parent, Align align, bool border, bool mnemonic)
    : QLabel(parent), align_(align), border_(border), mnemonic_(mnemonic) {
  setTextFormat(Qt::PlainText);
}

void LabelWidget::setColours(QColor ink, std::optional<QColor> ground, QColor behind) {
  ink_ = ink;
  ground_ = ground;
  behind_ = behind;
  setAttribute(Qt::WA_OpaquePaintEvent, ground.has_value());
  update();
}

void LabelWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (ground_) painter.fillRect(rect(), *ground_);
  if (border_ && width() > 1) {
    painter.setPen(Qt::black);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
  const int margin = border_ ? 2 : 0;
  // Words at the side of a coloured ground keep clear of its edge.
  const int side = ground_ && align_ != Align::Centre ? margin + font().pixelSize() / 3 : margin;
  const QRect room = rect().adjusted(side, margin, -side, -margin);
  if (laidText_ != text() || laidFont_ != font() || laidRoom_ != room.size()) {
    laidText_ = text();
    laidFont_ = font();
    laidRoom_ = room.size();
    block_.set(laidText_, laidFont_, laidRoom_, align_, mnemonic_);
  }
  block_.paint(painter, room, ink_, ground_.value_or(behind_));
}

}  // namespace platform
