#include "platform/forms/focus_ring.h"

#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "platform/forms/colors.h"

namespace platform::inline forms {

namespace {

constexpr double kDarkWidth = 3;
constexpr double kLightWidth = kFocusRingWidth - kDarkWidth;
constexpr double kUsualHeight = 768;  // of a window, in pixels

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

double markScale(const QWidget& widget) {
  const QWidget* lowest = widget.window();
  while (lowest->parentWidget() != nullptr) lowest = lowest->parentWidget()->window();
  return std::max(1.0, lowest->height() / kUsualHeight);
}

int markPixels(const QWidget& widget, double pixels) {
  return std::max(1, int(std::lround(pixels * markScale(widget))));
}

void paintBorder(QPainter& painter, const QRect& area, int width, const QColor& color) {
  const QRect inside = area.adjusted(width, width, -width, -width);
  for (const QRect& edge : QRegion(area).subtracted(inside)) painter.fillRect(edge, color);
}

void paintFocusRing(QPainter& painter, const QWidget& control, double corner, double inset) {
  if (withoutRings > 0) return;
  const QRectF area = QRectF(control.rect()).adjusted(inset, inset, -inset, -inset);
  const double dark = kDarkWidth * markScale(control);
  const double light = kLightWidth * markScale(control);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colors::kFocusRing, dark, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  ring(painter, area, dark, 0, corner);
  painter.setPen(QPen(Qt::white, light, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  ring(painter, area, light, dark, std::max(0.0, corner - 2 * markScale(control)));
}

WithoutFocusRings::WithoutFocusRings() {
  ++withoutRings;
}

WithoutFocusRings::~WithoutFocusRings() {
  --withoutRings;
}

}  // namespace platform::inline forms
