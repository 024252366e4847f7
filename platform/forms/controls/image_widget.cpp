#include "platform/forms/controls/image_widget.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/forms/pictures.h"

namespace platform::inline forms {

namespace {

constexpr double kSmall = 0.6;     // of the full size, where a picture begins
constexpr double kSwings = 1.5;    // of a shake, from one side to the other and back
constexpr int kSparks = 7;         // that go with the parts and are gone at the end
constexpr double kSparkWay = 0.4;  // of the shorter side, as far as they fly
constexpr double kSparkSize = 3;   // times the part of the way gone and that to go
constexpr double kTurn = 2 * std::numbers::pi;

// Fast at first, gently to the end.
double eased(double part) {
  return 1 - std::pow(1 - part, 3);
}

double sizeAt(double part) {
  return kSmall + (1 - kSmall) * eased(part);
}

// What is painted next comes out this many times as large about `middle`, and there at `to`.
void put(QPainter& painter, QPointF middle, QPointF to, double size) {
  painter.translate(to);
  painter.scale(size, size);
  painter.translate(-middle);
}

}  // namespace

void ImageWidget::setPop(Pop how, double part) {
  how_ = how;
  part_ = part;
  update();
}

void ImageWidget::setMargin(double share) {
  margin_ = share;
  update();
}

QRectF ImageWidget::area() const {
  const double margin = margin_ * std::min(width(), height());
  return QRectF(rect()).adjusted(margin, margin, -margin, -margin);
}

void ImageWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (part_ >= 1) {
    pictures_.paint(painter, name_, area());
  } else if (how_ == Pop::Burst) {
    paintBurst(painter);
  } else {
    paintShake(painter);
  }
}

// The first part grows in its place, the others fly from behind it to theirs, and sparks like the
// second fly on all sides and are spent on the way.
void ImageWidget::paintBurst(QPainter& painter) const {
  const QRectF area = this->area();
  const QPointF middle = area.center();
  const std::vector<QString> parts = pictures_.parts(name_);
  const auto fly = [&](const QString& part, QPointF to, double size) {
    painter.save();
    put(painter, pictures_.middleOf(name_, part, area), to, size);
    pictures_.paintPart(painter, name_, part, area);
    painter.restore();
  };
  const double way = std::min(area.width(), area.height()) * kSparkWay * eased(part_);
  for (int i = 0; i < kSparks && parts.size() > 1; ++i) {
    const double angle = kTurn * i / kSparks;
    fly(parts[1], middle + way * QPointF(std::sin(angle), -std::cos(angle)),
        kSparkSize * part_ * (1 - part_));
  }
  for (std::size_t i = 1; i < parts.size(); ++i) {
    const QPointF place = pictures_.middleOf(name_, parts[i], area);
    fly(parts[i], middle + (place - middle) * eased(part_), eased(part_));
  }
  put(painter, middle, middle, sizeAt(part_));
  if (parts.empty()) {
    pictures_.paint(painter, name_, area);
  } else {
    pictures_.paintPart(painter, name_, parts.front(), area);
  }
}

// It swings in the room that the growing picture leaves at its sides, so that nothing is cut off.
void ImageWidget::paintShake(QPainter& painter) const {
  const QRectF area = this->area();
  const double size = kSmall + (1 - kSmall) * part_;
  const double room = area.width() * (1 - size) / 2;
  const QPointF aside(room * std::sin(kTurn * kSwings * part_), 0);
  put(painter, area.center(), area.center() + aside, size);
  pictures_.paint(painter, name_, area);
}

}  // namespace platform::inline forms
