#include "platform/forms/controls/button_way.h"

#include <cmath>

namespace platform::inline forms {

std::optional<Direction> directionOf(int key) {
  switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
      return Direction{true, key == Qt::Key_Right, false};
    case Qt::Key_Up:
    case Qt::Key_Down:
      return Direction{false, key == Qt::Key_Down, false};
    case Qt::Key_Home:
    case Qt::Key_End:
      return Direction{true, key == Qt::Key_End, true};
    default:
      return std::nullopt;
  }
}

std::optional<Direction> directionOf(const QKeyEvent& event) {
  const bool plain = (event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier)) == 0;
  return plain ? directionOf(event.key()) : std::nullopt;
}

std::optional<Way> wayBetween(const QWidget& from, const QWidget& to, const Direction& direction) {
  const QPointF step = QRectF(to.geometry()).center() - QRectF(from.geometry()).center();
  const double along = direction.horizontal ? step.x() : step.y();
  const double across = std::abs(direction.horizontal ? step.y() : step.x());
  if (across >= (direction.horizontal ? from.height() : from.width()) / 2.0) return std::nullopt;
  return Way{direction.forward ? along : -along, across};
}

bool isBetter(const Way& way, const Way& than, const Direction& direction) {
  if (way.along == than.along) return way.across < than.across;
  return direction.toTheEnd == (way.along > than.along);
}

}  // namespace platform::inline forms
