#include "platform/forms/canvas.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "platform/forms/colors.h"
#include "platform/forms/design.h"
#include "platform/forms/page_owner.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

Canvas::Canvas(const PageOwner& owner, QWidget* parent) : QWidget(parent), owner_(owner) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void Canvas::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const QRect exposed = event->rect();
  if (gradient_.isEmpty()) {
    painter.fillRect(exposed, toColor(owner_.design().back));
    return;
  }
  constexpr int kBands = 256;
  constexpr QColor kLast = colors::gradient(kBands - 1);
  const double band = double(gradient_.height()) / kBands;
  const int first = std::max(0, int(exposed.top() / band));
  // The edges of the bands are rounded: the last row can belong to one that begins below it.
  const int last = std::min(kBands - 1, int((exposed.bottom() + 1) / band));
  for (int i = first; i <= last; ++i) {
    const int top = qRound(i * band);
    const int bottom = qRound((i + 1) * band);
    painter.fillRect(QRect(0, top, gradient_.width(), bottom - top), colors::gradient(i));
  }
  if (exposed.right() >= gradient_.width()) {
    painter.fillRect(QRect(gradient_.width(), exposed.top(),
                           exposed.right() - gradient_.width() + 1, exposed.height()),
                     kLast);
  }
  if (exposed.bottom() >= gradient_.height()) {
    painter.fillRect(QRect(exposed.left(), gradient_.height(), exposed.width(),
                           exposed.bottom() - gradient_.height() + 1),
                     kLast);
  }
}

// Tab goes round the controls of this form in the order of its design, and stays in a covering
// panel while one is open.
bool Canvas::focusNextPrevChild(bool next) {
  return passFocus(window()->focusWidget(), next);
}

bool Canvas::passFocus(QWidget* from, bool next) {
  const QWidget* covering = owner_.focusRoom();
  const QWidget* room = covering != nullptr ? covering : this;
  QWidget* start = from != nullptr && isAncestorOf(from) ? from : this;
  QWidget* widget = start;
  do {
    widget = next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    if (room->isAncestorOf(widget) && widget->isVisible() && widget->isEnabled() &&
        (widget->focusPolicy() & Qt::TabFocus) != 0) {
      widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
      return true;
    }
  } while (widget != start);
  return false;
}

}  // namespace platform::inline forms
