#include "platform/forms/controls/scroll_bar_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

namespace platform::inline forms {

namespace {

constexpr int kNarrowestThumb = 44;  // pixels
constexpr double kThumbShape = 1.6;  // width to height
constexpr int kRepeatAfter = 500;    // milliseconds that an arrow is held
constexpr int kRepeatEvery = 120;

}  // namespace

ScrollBarWidget::ScrollBarWidget(QWidget* parent, double unit, std::function<bool()> mayAct)
    : QSlider(Qt::Horizontal, parent), unit_(unit), mayAct_(std::move(mayAct)) {
  setFocusPolicy(Qt::StrongFocus);
}

QRect ScrollBarWidget::lessArrow() const {
  return {0, 0, std::min(height() * 3 / 2, width() / 6), height()};
}

QRect ScrollBarWidget::moreArrow() const {
  const int side = lessArrow().width();
  return {width() - side, 0, side, height()};
}

QRect ScrollBarWidget::way() const {
  const int side = lessArrow().width();
  return {side, 0, std::max(1, width() - 2 * side), height()};
}

QRect ScrollBarWidget::thumb() const {
  const QRect room = way();
  const int side =
      std::min(room.width() / 2, std::max(kNarrowestThumb, int(height() * kThumbShape)));
  const int steps = std::max(1, maximum() - minimum());
  const int offset = qRound(double(room.width() - side) * (value() - minimum()) / steps);
  return {room.left() + offset, 0, side, height()};
}

int ScrollBarWidget::valueAt(int x) const {
  const QRect room = way();
  const int free = std::max(1, room.width() - thumb().width());
  return minimum() + qRound(double(x - room.left()) * (maximum() - minimum()) / free);
}

void ScrollBarWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QPoint point = event->position().toPoint();
  const bool less = lessArrow().contains(point);
  if (less || moreArrow().contains(point)) {
    const SliderAction step = less ? SliderSingleStepSub : SliderSingleStepAdd;
    triggerAction(step);
    setRepeatAction(step, kRepeatAfter, kRepeatEvery);
    return;
  }
  const QRect held = thumb();
  if (held.contains(point)) {
    grip_ = point.x() - held.left();
  } else {
    grip_ = held.width() / 2;
    setValue(valueAt(point.x() - grip_));
  }
}

// A slider's own Up and Page Up go to the right; on a scroll bar they go back.
void ScrollBarWidget::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
      triggerAction(SliderSingleStepSub);
      break;
    case Qt::Key_Down:
      triggerAction(SliderSingleStepAdd);
      break;
    case Qt::Key_PageUp:
      triggerAction(SliderPageStepSub);
      break;
    case Qt::Key_PageDown:
      triggerAction(SliderPageStepAdd);
      break;
    default:
      QSlider::keyPressEvent(event);
  }
}

void ScrollBarWidget::mouseMoveEvent(QMouseEvent* event) {
  if (grip_ == kNoGrip) return;
  setValue(valueAt(event->position().toPoint().x() - grip_));
}

void ScrollBarWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) letGo();
}

// Under a box that opens no release comes any more.
bool ScrollBarWidget::event(QEvent* event) {
  if (event->type() == QEvent::WindowBlocked) letGo();
  return QSlider::event(event);
}

void ScrollBarWidget::hideEvent(QHideEvent* event) {
  letGo();
  QSlider::hideEvent(event);
}

void ScrollBarWidget::letGo() {
  setRepeatAction(SliderNoAction);
  grip_ = kNoGrip;
}

}  // namespace platform::inline forms
