#include "platform/forms/controls/button_group.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <algorithm>
#include <optional>
#include <span>

#include "platform/forms/accessible.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/button_way.h"
#include "platform/forms/controls/button_widget.h"
#include "platform/forms/controls/label.h"

namespace platform::inline forms {

namespace {

bool canTakeFocus(const Button& button) {
  const QWidget* widget = button.widget();
  return widget != nullptr && widget->isVisible() && widget->isEnabled() &&
         (widget->focusPolicy() & Qt::TabFocus) != 0;
}

}  // namespace

void ButtonGroup::add(Button& button, const Label* heading) {
  buttons_.push_back(&button);
  if (heading != nullptr) {
    static_cast<ButtonWidget*>(button.widget())->setHeading(heading->widget());
  }
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
