#include "platform/forms/controls/button_group.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

#include "platform/forms/accessible.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/button_widget.h"
#include "platform/forms/controls/label.h"

namespace platform::inline forms {

namespace {

bool canTakeFocus(const Button& button) {
  const QWidget* widget = button.widget();
  return widget != nullptr && widget->isVisible() && widget->isEnabled() &&
         (widget->focusPolicy() & Qt::TabFocus) != 0;
}

// The way from one button to another, in pixels: in the direction of a key and across it.
struct Way {
  double along = 0;
  double across = 0;
};

// forward: to the right, or down.
struct Direction {
  bool horizontal = true;
  bool forward = true;
  bool toTheEnd = false;
};

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

// Nothing for a button in another row, or column: its middle lies beside the one it is seen from.
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

}  // namespace

void ButtonGroup::add(Button& button, const Label* heading) {
  buttons_.push_back(&button);
  if (heading != nullptr)
    static_cast<ButtonWidget*>(button.widget())->setHeading(heading->widget());
  button.widget()->installEventFilter(this);
}

void ButtonGroup::setEnabled(int count, bool enabled) {
  const StatesToldLater later;
  Button* last = nullptr;
  for (Button* button : std::span(buttons_).first(std::min(buttons_.size(), size_t(count)))) {
    if (!enabled && button->hasFocus()) {
      last = button;
    } else {
      button->setEnabled(enabled);
    }
  }
  if (last != nullptr) last->setEnabled(false);
}

void ButtonGroup::focusFirst() {
  const auto first =
      std::ranges::find_if(buttons_, [](const Button* b) { return canTakeFocus(*b); });
  if (first != buttons_.end()) (*first)->setFocus();
}

void ButtonGroup::focusAgain() {
  if (reached_ != nullptr && canTakeFocus(*reached_)) {
    reached_->setFocus();
  } else {
    focusFirst();
  }
}

bool ButtonGroup::standsAloneInItsRow(const QWidget& widget) const {
  return std::ranges::none_of(buttons_, [&widget](const Button* button) {
    const QWidget& other = *button->widget();
    return &other != &widget && other.isVisible() &&
           wayBetween(widget, other, {.horizontal = true}).has_value();
  });
}

// Of buttons in one column alone the ends are those of the column.
Button* ButtonGroup::target(const QWidget& from, int key) const {
  Direction direction = *directionOf(key);
  if (direction.toTheEnd && standsAloneInItsRow(from)) direction.horizontal = false;
  Button* best = nullptr;
  Way bestWay;
  for (Button* button : buttons_) {
    if (!canTakeFocus(*button)) continue;
    const std::optional<Way> way = wayBetween(from, *button->widget(), direction);
    if (!way || way->along <= 0) continue;
    if (best != nullptr && !isBetter(*way, bestWay, direction)) continue;
    best = button;
    bestWay = *way;
  }
  return best;
}

void ButtonGroup::focusCame(Button& button, Qt::FocusReason reason) {
  switch (reason) {
    case Qt::MouseFocusReason:
      reached_ = nullptr;
      break;
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
      break;  // it was here before
    default:
      reached_ = &button;
  }
}

bool ButtonGroup::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    const auto button = std::ranges::find(buttons_, watched, &Button::widget);
    if (button != buttons_.end()) {
      focusCame(**button, static_cast<QFocusEvent*>(event)->reason());
    }
    return false;
  }
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<QKeyEvent&>(*event);
  if (!directionOf(key)) return false;
  if (Button* next = target(static_cast<QWidget&>(*watched), key.key())) next->setFocus();
  return true;
}

}  // namespace platform::inline forms
