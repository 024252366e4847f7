#include "platform/flash/outline.h"

#include <limits>

namespace platform::flash {

namespace {

// Fine enough for a pointer, whatever the scale.
constexpr double kHitTolerance = 4;  // twips

double squaredDistance(QPointF point, QPointF from, QPointF to) {
  const QPointF along = to - from;
  const double length = QPointF::dotProduct(along, along);
  double t = 0;
  if (length > 0) {
    t = std::clamp(QPointF::dotProduct(point - from, along) / length, 0.0, 1.0);
  }
  const QPointF away = point - (from + t * along);
  return QPointF::dotProduct(away, away);
}

}  // namespace

void Outline::moveTo(QPointF to) {
  segments_.push_back({Segment::Kind::Move, 0, 0, float(to.x()), float(to.y())});
}

void Outline::lineTo(QPointF to) {
  segments_.push_back({Segment::Kind::Line, 0, 0, float(to.x()), float(to.y())});
}

void Outline::curveTo(QPointF control, QPointF to) {
  ++curves_;
  segments_.push_back(
      {Segment::Kind::Curve, float(control.x()), float(control.y()), float(to.x()), float(to.y())});
}

QRectF Outline::bounds() const {
  if (segments_.empty()) {
    return {};
  }
  double left = std::numeric_limits<double>::max();
  double top = left;
  double right = -left;
  double bottom = -left;
  const auto add = [&](double x, double y) {
    left = std::min(left, x);
    right = std::max(right, x);
    top = std::min(top, y);
    bottom = std::max(bottom, y);
  };
  for (const Segment& segment : segments_) {
    add(segment.x, segment.y);
    if (segment.kind == Segment::Kind::Curve) {
      add(segment.controlX, segment.controlY);
    }
  }
  return {QPointF(left, top), QPointF(right, bottom)};
}

bool Outline::contains(QPointF point) const {
  bool inside = false;
  flatten(*this, 1, kHitTolerance, [&](QPointF from, QPointF to) {
    if ((from.y() <= point.y()) != (to.y() <= point.y())) {
      const double t = (point.y() - from.y()) / (to.y() - from.y());
      if (point.x() < from.x() + t * (to.x() - from.x())) {
        inside = !inside;
      }
    }
  });
  return inside;
}

bool Outline::touches(QPointF point, double distance, const QTransform& matrix) const {
  bool near = false;
  flatten(*this, 1, kHitTolerance, [&](QPointF from, QPointF to) {
    near = near || squaredDistance(point, matrix.map(from), matrix.map(to)) <= distance * distance;
  });
  return near;
}

QPainterPath Outline::toPainterPath() const {
  QPainterPath path;
  for (const Segment& segment : segments_) {
    switch (segment.kind) {
      case Segment::Kind::Move:
        path.moveTo(segment.x, segment.y);
        break;
      case Segment::Kind::Line:
        path.lineTo(segment.x, segment.y);
        break;
      case Segment::Kind::Curve:
        path.quadTo(segment.controlX, segment.controlY, segment.x, segment.y);
        break;
    }
  }
  return path;
}

}  // namespace platform::flash
