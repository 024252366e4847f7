#include "platform/forms/controls/up_down_widget.h"

#include <QMouseEvent>
#include <QPainter>

#include "platform/forms/colors.h"
#include "platform/forms/focus_ring.h"

namespace platform::inline forms {

namespace {

// Milliseconds: until a held arrow repeats, and between its repeats.
constexpr int kFirstRepeat = 500;
constexpr int kNextRepeat = 100;

}  // namespace

UpDownWidget::UpDownWidget(QWidget* parent, TimeSource& time, Hooks hooks)
    : QAbstractSlider(parent),
      hooks_(std::move(hooks)),
      ticker_(time.makeTicker([this] { repeat(); })) {
  setFocusPolicy(Qt::NoFocus);
}

UpDownWidget::~UpDownWidget() = default;

void UpDownWidget::setLimits(int lowest, int highest) {
  telling_ = true;
  setRange(lowest, highest);
  telling_ = false;
}

void UpDownWidget::show(int value) {
  telling_ = true;
  setValue(value);
  telling_ = false;
}

void UpDownWidget::sliderChange(SliderChange change) {
  QAbstractSlider::sliderChange(change);
  if (change == SliderValueChange && !telling_) hooks_.moveTo(value());
}

void UpDownWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  held_ = event->position().x() < width() / 2.0 ? -1 : 1;
  update();
  ticker_->setInterval(kFirstRepeat);
  ticker_->start();
  hooks_.step(held_);
}

void UpDownWidget::repeat() {
  if (held_ == 0) return;
  if (ticker_->interval() != kNextRepeat) ticker_->setInterval(kNextRepeat);
  hooks_.step(held_);
}

void UpDownWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) letGo();
}

// Under a box that opens no release comes any more.
bool UpDownWidget::event(QEvent* event) {
  if (event->type() == QEvent::WindowBlocked) letGo();
  return QAbstractSlider::event(event);
}

void UpDownWidget::hideEvent(QHideEvent* event) {
  letGo();
  QAbstractSlider::hideEvent(event);
}

void UpDownWidget::letGo() {
  ticker_->stop();
  held_ = 0;
  update();
}

void UpDownWidget::paintArrow(QPainter& painter, const QRect& room, bool up) const {
  const bool down = held_ == (up ? 1 : -1);
  painter.fillRect(room, down ? colors::kFaceHeld : colors::kFace);
  paintBorder(painter, room, markPixels(*this, 1), colors::kEdge);
  const double side = std::min(room.width(), room.height()) * 0.22;
  const QPointF middle = QRectF(room).center();
  const double tip = up ? -side : side;
  const QPointF points[]{{middle.x(), middle.y() + tip},
                         {middle.x() - 1.3 * side, middle.y() - tip},
                         {middle.x() + 1.3 * side, middle.y() - tip}};
  painter.setPen(Qt::NoPen);
  painter.setBrush(isEnabled() ? Qt::black : Qt::gray);
  painter.drawPolygon(points, 3);
}

void UpDownWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const int half = width() / 2;
  paintArrow(painter, QRect(0, 0, half, height()), false);
  paintArrow(painter, QRect(half, 0, width() - half, height()), true);
}

}  // namespace platform::inline forms
