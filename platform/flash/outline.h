#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace platform::flash {

// A path of straight and quadratic pieces, in twips of the shape that it belongs to. Contours of a
// filled outline are closed; those of a stroked one need not be.
class Outline {
 public:
  struct Segment {
    enum class Kind : std::uint8_t { Move, Line, Curve };
    Kind kind;
    // Twips; the control point counts for curves only.
    float controlX, controlY, x, y;

    bool operator==(const Segment&) const = default;
  };

  void moveTo(QPointF to);
  void lineTo(QPointF to);
  void curveTo(QPointF control, QPointF to);

  [[nodiscard]] const std::vector<Segment>& segments() const { return segments_; }
  [[nodiscard]] bool isEmpty() const { return segments_.empty(); }
  // How many of the segments are curves, which take up to 64 straight pieces each.
  [[nodiscard]] std::size_t curves() const { return curves_; }
  // Holds all points and control points.
  [[nodiscard]] QRectF bounds() const;
  // Whether the point lies within, by the even-odd rule that fills follow.
  [[nodiscard]] bool contains(QPointF point) const;
  // Whether the point lies at most distance away from the line itself.
  // Whether the point lies at most distance away from the line itself once that has gone through
  // the matrix; both are told in what comes out of it.
  [[nodiscard]] bool touches(QPointF point, double distance, const QTransform& matrix) const;
  [[nodiscard]] QPainterPath toPainterPath() const;

 private:
  std::vector<Segment> segments_;
  std::size_t curves_ = 0;
};

// Calls line(from, to) for straight pieces that follow the outline; a curve takes as many as keep
// the deviation below tolerance after the scale. Contours are not closed here.
template <typename Line>
void flatten(const Outline& outline, double scale, double tolerance, Line line) {
  constexpr int kMostPieces = 64;
  QPointF from;
  for (const Outline::Segment& segment : outline.segments()) {
    const QPointF to(segment.x, segment.y);
    if (segment.kind == Outline::Segment::Kind::Line) {
      line(from, to);
    } else if (segment.kind == Outline::Segment::Kind::Curve) {
      const QPointF control(segment.controlX, segment.controlY);
      // A chord of the nth part of a quadratic deviates by a quarter of the bend over n squared.
      const QPointF bend = from - 2 * control + to;
      const double deviation = std::sqrt(QPointF::dotProduct(bend, bend)) * scale / 4;
      const int pieces = static_cast<int>(
          std::clamp(std::ceil(std::sqrt(deviation / tolerance)), 1.0, double(kMostPieces)));
      QPointF last = from;
      for (int i = 1; i <= pieces; ++i) {
        const double t = double(i) / pieces;
        const QPointF next =
            i == pieces ? to : (1 - t) * (1 - t) * from + 2 * t * (1 - t) * control + t * t * to;
        line(last, next);
        last = next;
      }
    }
    from = to;
  }
}

}  // namespace platform::flash
