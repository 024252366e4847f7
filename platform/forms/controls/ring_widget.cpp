#include "platform/forms/controls/ring_widget.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace platform::inline forms {

namespace {

constexpr int kThinnest = 8;         // pixels of the dark ring
constexpr double kThickness = 0.13;  // of the side of what it surrounds
constexpr int kEdge = 2;             // pixels of each light edge
constexpr double kCorner = 8;

int thickness(int side) {
  return std::max(kThinnest, qRound(side * kThickness));
}

QPainterPath rounded(const QRectF& area, double corner) {
  QPainterPath path;
  path.addRoundedRect(area, corner, corner);
  return path;
}

}  // namespace

RingWidget::RingWidget(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

// The larger half of the ring lies outside, so that what it surrounds keeps its room.
int RingWidget::reach(int side) {
  return (thickness(side) * 5 + 4) / 8 + kEdge;
}

void RingWidget::surround(const QRect& area) {
  const int side = std::min(area.width(), area.height());
  const int out = reach(side);
  thickness_ = thickness(side);
  setGeometry(area.adjusted(-out, -out, out, out));
}

void RingWidget::follow(QWidget& sibling) {
  sibling.installEventFilter(this);
  QEvent now(QEvent::FocusIn);
  eventFilter(&sibling, &now);
}

bool RingWidget::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::FocusIn:
    case QEvent::FocusOut: {
      const auto& sibling = *static_cast<const QWidget*>(watched);
      surround(sibling.geometry());
      setVisible(sibling.isVisible() && sibling.hasFocus());
      if (isVisible()) raise();
      break;
    }
    default:
      break;
  }
  return false;
}

void RingWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF whole = rect();
  const QRectF dark = whole.adjusted(kEdge, kEdge, -kEdge, -kEdge);
  const QRectF inside = dark.adjusted(thickness_, thickness_, -thickness_, -thickness_);
  const QRectF hole = inside.adjusted(kEdge, kEdge, -kEdge, -kEdge);
  painter.fillPath(rounded(whole, kCorner).subtracted(rounded(hole, 1)), Qt::white);
  painter.fillPath(rounded(dark, kCorner - kEdge).subtracted(rounded(inside, 2)), Qt::black);
}

}  // namespace platform::inline forms
