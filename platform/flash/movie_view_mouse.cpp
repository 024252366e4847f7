#include <QMouseEvent>

#include "platform/flash/movie_view.h"
#include "platform/flash/player.h"
#include "platform/flash/units.h"

// What a movie on a form feels of the mouse.
namespace platform::flash {

// Nothing beside the stage.
std::optional<QPointF> MovieView::stagePixel(QPointF position) const {
  if (ignoresMouse_) return std::nullopt;
  bool possible = false;
  const QPointF point = stageToWidget().inverted(&possible).map(position);
  const QRectF stage = player_->movie().stage;
  if (!possible || !stage.contains(point)) {
    return std::nullopt;
  }
  return (point - stage.topLeft()) / kPixel.count();
}

// What a move makes the movie say is posted: Qt makes moves up where a widget is shown or hidden,
// in the middle of what the receiver does.
void MovieView::mouseMoveEvent(QMouseEvent* event) {
  mouse_ = event->position();
  if (player_ == nullptr) {
    return;
  }
  if (const auto position = stagePixel(*mouse_)) {
    player_->mouseMove(*position);
  } else {
    player_->mouseLeave();
  }
  adjustTicker();
  changed();
}

void MovieView::mousePressEvent(QMouseEvent* event) {
  mouse_ = event->position();
  const auto position = player_ == nullptr ? std::nullopt : stagePixel(*mouse_);
  if (event->button() != Qt::LeftButton || !position) {
    return;
  }
  player_->mousePress(*position);
  adjustTicker();
  changed();
  tellWaiting();
}

void MovieView::mouseReleaseEvent(QMouseEvent* event) {
  mouse_ = event->position();
  if (event->button() != Qt::LeftButton || player_ == nullptr) {
    return;
  }
  if (const auto position = stagePixel(*mouse_)) {
    player_->mouseRelease(*position);
  } else {
    player_->mouseReleaseOutside();
  }
  adjustTicker();
  changed();
  tellWaiting();
}

void MovieView::leaveEvent(QEvent* event) {
  mouse_.reset();
  if (player_ != nullptr) {
    player_->mouseLeave();
    adjustTicker();
    changed();
  }
  QWidget::leaveEvent(event);
}

// A press that the view does not live to see the end of must not be taken for one still held.
void MovieView::hideEvent(QHideEvent* event) {
  mouse_.reset();
  if (player_ != nullptr) {
    player_->mouseReleaseOutside();
    adjustTicker();
    changed();
  }
  QWidget::hideEvent(event);
}

}  // namespace platform::flash
