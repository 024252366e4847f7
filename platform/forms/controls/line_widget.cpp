#include "platform/forms/controls/line_widget.h"

#include <QPainter>

namespace platform::inline forms {

LineWidget::LineWidget(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineWidget::setEnds(QPoint from, QPoint to, int thickness) {
  thickness_ = thickness;
  const QRect ends = QRect(QPoint(std::min(from.x(), to.x()), std::min(from.y(), to.y())),
                           QPoint(std::max(from.x(), to.x()) - 1, std::max(from.y(), to.y()) - 1));
  const int before = thickness / 2;
  const int after = thickness - before;
  setGeometry(ends.adjusted(-before, -before, after, after));
  from_ = from - pos();
  to_ = to - pos();
  update();
}

void LineWidget::setInk(const QColor& ink) {
  ink_ = ink;
  update();
}

void LineWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const int before = thickness_ / 2;
  if (from_.x() == to_.x()) {
    painter.fillRect(QRect(from_.x() - before, 0, thickness_, height()), ink_);
  } else if (from_.y() == to_.y()) {
    painter.fillRect(QRect(0, from_.y() - before, width(), thickness_), ink_);
  } else {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink_, thickness_));
    painter.drawLine(from_, to_);
  }
}

}  // namespace platform::inline forms
