#include "platform/forms/focus_ring.h"

#include <QPainter>
#include <algorithm>

namespace platform {

namespace {

constexpr QColor kDark(10, 20, 90);
constexpr double kDarkWidth = 3;
constexpr double kLightWidth = kFocusRingWidth - kDarkWidth;

// How many pictures without rings are being made; windows are painted on one thread only.
int withoutRings = 0;

void ring(QPainter& painter, const QRectF& area, double width, double distance, double corner) {
  const double inset = distance + width / 2;
  const QRectF line = area.adjusted(inset, inset, -inset, -inset);
  if (corner > 0) {
    painter.drawRoundedRect(line, corner, corner);
  } else {
    painter.drawRect(line);
  }
}

}  // namespace

void paintFocusRing(QPainter& painter, const QRectF& area, double corner) {
  if (withoutRings > 0) return;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(kDark, kDarkWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  ring(painter, area, kDarkWidth, 0, corner);
  painter.setPen(QPen(Qt::white, kLightWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  ring(painter, area, kLightWidth, kDarkWidth, std::max(0.0, corner - 2));
}

WithoutFocusRings::WithoutFocusRings() {
  ++withoutRings;
}

WithoutFocusRings::~WithoutFocusRings() {
  --withoutRings;
}

}  // namespace platform
