#include <QPainter>
#include <algorithm>

#include "platform/forms/colors.h"
#include "platform/forms/controls/scroll_bar_widget.h"
#include "platform/forms/focus_ring.h"

// How a scroll bar is painted.
namespace platform::inline forms {

namespace {

constexpr double kCorner = 5;

QRectF inside(const QRectF& area, double inset) {
  return area.adjusted(inset, inset, -inset, -inset);
}

}  // namespace

double ScrollBarWidget::corner() const {
  return kCorner * markScale(*this);
}

void ScrollBarWidget::paintArrow(QPainter& painter, const QRect& place, bool towardsMore) const {
  const double edge = markPixels(*this, 1);
  painter.setPen(QPen(colors::kEdge, edge));
  painter.setBrush(colors::kFace);
  painter.drawRoundedRect(inside(place, edge / 2), corner(), corner());
  const QPointF centre = QRectF(place).center();
  const double half = std::min(place.width(), place.height()) * 0.24;
  const double tip = towardsMore ? half : -half;
  painter.setPen(Qt::NoPen);
  painter.setBrush(colors::kInk);
  painter.drawPolygon(QPolygonF({{centre.x() - tip, centre.y() - half},
                                 {centre.x() + tip, centre.y()},
                                 {centre.x() - tip, centre.y() + half}}));
}

void ScrollBarWidget::paintThumb(QPainter& painter) const {
  const QRectF place = inside(thumb(), 1.5 * markScale(*this));
  painter.setPen(QPen(colors::kInk, markPixels(*this, 2)));
  painter.setBrush(colors::kThumb);
  painter.drawRoundedRect(place, corner(), corner());
  for (const int line : {-1, 0, 1}) {
    const double x = place.center().x() + line * place.width() * 0.14;
    painter.drawLine(QPointF(x, place.top() + place.height() * 0.3),
                     QPointF(x, place.bottom() - place.height() * 0.3));
  }
}

void ScrollBarWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double edge = markPixels(*this, 1);
  painter.setPen(QPen(colors::kEdge, edge));
  painter.setBrush(colors::kGroove);
  painter.drawRect(inside(way(), edge / 2));
  paintArrow(painter, lessArrow(), false);
  paintArrow(painter, moreArrow(), true);
  paintThumb(painter);
  if (hasFocus()) paintFocusRing(painter, *this, corner());
}

}  // namespace platform::inline forms
